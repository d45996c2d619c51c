#include "ipagecontroller.h"
#include "pagefinish.h"
#include "pageintroduction.h"
#include "testcase.h"

#include <QLabel>
#include <QPushButton>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QTest>

namespace {

class CountingController : public IPageController
{
public:
    void next() override { ++nexts; }
    void back() override { ++backs; }
    void quit() override { ++quits; }
    void setInstallDone(bool /*done*/) override {}

    int nexts = 0;
    int backs = 0;
    int quits = 0;
};

QStringList buttonTexts(const QWidget& page)
{
    QStringList texts;
    for (const auto* button : page.findChildren<QPushButton*>()) {
        texts.append(button->text());
    }
    return texts;
}

QStringList paragraphs(const QWidget& page)
{
    QStringList texts;
    for (const auto* label : page.findChildren<QLabel*>()) {
        texts.append(label->text());
    }
    return texts;
}

} // namespace

class TestMessagePages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void introductionTellsWhatTheToolDoes();
    void introductionOffersCloseAndNext();
    void finishPageAdvises();
    void finishPageHasNoBackButton();
    void everyTextIsShownWholeInTheSmallestWindow();
};

void TestMessagePages::introductionTellsWhatTheToolDoes()
{
    CountingController controller;
    const PageIntroduction page(&controller, nullptr, nullptr);
    QCOMPARE(page.title(), QStringLiteral("1. Introduction"));
    QCOMPARE(page.pageNumber(), 1);
    const QStringList texts = paragraphs(page);
    QCOMPARE(texts.size(), 3);
    QCOMPARE(texts.at(0),
             QStringLiteral("This tool helps generating preset settings for up to 4 Calyra "
                            "solutions that make up a divide/combine space."));
    QVERIFY(texts.at(1).startsWith(QStringLiteral("The presets on an PX-HB include information")));
    QVERIFY(texts.at(2).startsWith(QStringLiteral("This wizard allows to define the partitions")));
    QVERIFY(page.findChild<QSvgWidget*>()->renderer()->isValid());
}

void TestMessagePages::introductionOffersCloseAndNext()
{
    CountingController controller;
    PageIntroduction page(&controller, nullptr, nullptr);
    QCOMPARE(buttonTexts(page), QStringList({QStringLiteral("Close"), QStringLiteral("Next")}));
    page.show();
    QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("nextButton")), Qt::LeftButton);
    QCOMPARE(controller.nexts, 1);
    QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("closeButton")), Qt::LeftButton);
    QCOMPARE(controller.quits, 1);
}

void TestMessagePages::finishPageAdvises()
{
    CountingController controller;
    PageFinish page(&controller, nullptr, nullptr);
    // No blank after the point in this one title.
    QCOMPARE(page.title(), QStringLiteral("9.Ready to use"));
    QCOMPARE(page.pageNumber(), 9);
    const QStringList texts = paragraphs(page);
    QCOMPARE(texts.size(), 3);
    QCOMPARE(texts.at(0), QStringLiteral(" "));
    QVERIFY(texts.at(1).contains(QStringLiteral("Remember to safe the presets")));
    QVERIFY(texts.at(2).endsWith(QStringLiteral("the system might malfunction.")));
    QVERIFY(page.findChild<QSvgWidget*>()->renderer()->isValid());
    page.show();
    QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("closeButton")), Qt::LeftButton);
    QCOMPARE(controller.quits, 1);
}

void TestMessagePages::finishPageHasNoBackButton()
{
    CountingController controller;
    const PageFinish page(&controller, nullptr, nullptr);
    QCOMPARE(buttonTexts(page), QStringList({QStringLiteral("Close")}));
}

void TestMessagePages::everyTextIsShownWholeInTheSmallestWindow()
{
    CountingController controller;
    PageIntroduction introduction(&controller, nullptr, nullptr);
    PageFinish finish(&controller, nullptr, nullptr);
    for (QWidget* page : {static_cast<QWidget*>(&introduction), static_cast<QWidget*>(&finish)}) {
        page->resize(780, 540);
        page->show();
        QCOMPARE(page->size(), QSize(780, 540));
        for (const auto* label : page->findChildren<QLabel*>()) {
            QVERIFY2(label->height() >= label->heightForWidth(label->width()),
                     qPrintable(label->text()));
        }
        const auto* picture = page->findChild<QSvgWidget*>();
        QVERIFY(picture->height() >= picture->sizeHint().height());
    }
}

TESSEL_TEST_MAIN(TestMessagePages)
#include "tst_messagepages.moc"
