#include "basepage.h"
#include "dialoganswerer.h"
#include "mainwindow.h"
#include "pagefixtures.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

namespace {

/// A page that notes what the window tells it, and when.
class Probe : public BasePage
{
public:
    Probe(int number, MainWindow* window, IDocAccessor* doc)
        : BasePage(QStringLiteral("page %1").arg(number), number, window, doc, nullptr)
    {
    }

    void enterFrom(int previousPageNumber) override
    {
        calls.append(QStringLiteral("from %1").arg(previousPageNumber));
        wasVisible = wasVisible || isVisible();
    }
    void restoreFromDocument() override { calls.append(QStringLiteral("restore")); }
    void storeToDocument() override { calls.append(QStringLiteral("store")); }

    QStringList calls;
    bool wasVisible = false;
};

/// The window with probes in the place of its pages.
struct ProbedWindow
{
    ProbedWindow()
    {
        setNicIndex(doc, 7);
        window = std::make_unique<MainWindow>(nullptr, &doc);
        stack = window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
        delete stack->widget(0);
        for (int number = 1; number <= pageCount; ++number) {
            probes.append(new Probe(number, window.get(), &doc));
            stack->addWidget(probes.last());
        }
        window->show();
    }

    QString title() const
    {
        return window->findChild<QLabel*>(QStringLiteral("titleLabel"))->text();
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
    QStackedWidget* stack = nullptr;
    QList<Probe*> probes;
};

} // namespace

/// How the window moves between pages and ends, whatever the pages are.
class TestNavigation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aPageIsEnteredFromTheOneLeftBeforeItIsShown();
    void nextOnTheFinishPageEntersItFromItself();
    void backOnTheIntroductionEntersItFromItself();
    void savingStoresTheCurrentPageOnly();
    void closeOnTheFirstAndTheLastPageEndsTheProgramWithoutADialog_data();
    void closeOnTheFirstAndTheLastPageEndsTheProgramWithoutADialog();
};

void TestNavigation::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
}

void TestNavigation::aPageIsEnteredFromTheOneLeftBeforeItIsShown()
{
    const ProbedWindow wizard;
    wizard.window->next();
    wizard.window->next();
    wizard.window->back();
    QCOMPARE(wizard.probes.at(1)->calls, strings({"from 1", "from 3"}));
    QCOMPARE(wizard.probes.at(2)->calls, strings({"from 2"}));
    QVERIFY(!wizard.probes.at(1)->wasVisible);
    QVERIFY(wizard.probes.at(1)->isVisible());
    QCOMPARE(wizard.title(), QStringLiteral("page 2"));
}

void TestNavigation::nextOnTheFinishPageEntersItFromItself()
{
    const ProbedWindow wizard;
    for (int i = 0; i < pageCount; ++i) {
        wizard.window->next();
    }
    QCOMPARE(wizard.probes.last()->calls, strings({"from 8", "from 9"}));
    QCOMPARE(wizard.stack->currentIndex(), pageCount - 1);
}

void TestNavigation::backOnTheIntroductionEntersItFromItself()
{
    const ProbedWindow wizard;
    wizard.window->back();
    QCOMPARE(wizard.probes.first()->calls, strings({"from 1"}));
    QCOMPARE(wizard.stack->currentIndex(), 0);
}

void TestNavigation::savingStoresTheCurrentPageOnly()
{
    const ProbedWindow wizard;
    wizard.window->next();
    wizard.window->next();
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(wizard.window->close());
    QCOMPARE(wizard.probes.at(1)->calls, strings({"from 1"}));
    QCOMPARE(wizard.probes.at(2)->calls, strings({"from 2", "store"}));
    QCOMPARE(wizard.probes.at(3)->calls, QStringList());
}

void TestNavigation::closeOnTheFirstAndTheLastPageEndsTheProgramWithoutADialog_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("introduction") << 0;
    QTest::newRow("finish page") << pageCount - 1;
}

void TestNavigation::closeOnTheFirstAndTheLastPageEndsTheProgramWithoutADialog()
{
    QFETCH(const int, index);
    TesselDoc doc(nullptr);
    setNicIndex(doc, 7);
    MainWindow window(nullptr, &doc);
    window.show();
    const auto* stack = window.findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    while (stack->currentIndex() < index) {
        window.next();
    }
    const DialogAnswerer nothingIsAsked;
    QMetaObject::invokeMethod(
        this, [stack] { press(buttonOf(*stack->currentWidget(), "closeButton")); },
        Qt::QueuedConnection);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!window.isVisible());
}

TESSEL_TEST_MAIN(TestNavigation)
#include "tst_navigation.moc"
