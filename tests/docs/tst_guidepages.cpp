#include "guide.h"
#include "guidepage.h"
#include "programtexts.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

namespace {

const QString folder = QStringLiteral(TESSEL_BUILD_FOLDER "/guide");

QStringList pageNames()
{
    return QDir(folder).entryList({QStringLiteral("*.html")});
}

} // namespace

/// The guide as it is delivered, with the version filled in.
class TestGuidePages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theProgramThatWasBuiltFindsIt();
    void everyStepHasItsPage();
    void everyPageIsWellFormed();
    void everyPageTellsTheVersionOnce();
    void everyLinkLeadsSomewhere();
    void everyPageIsReachedFromTheFirst();
    void everyPictureIsThereAndDescribed();
    void everyPictureIsShown();
    void noPageNeedsANetworkOrRunsAScript();
    void everyQuotedTextIsTheProgramsOwn();
    void itIsSmall();

private:
    QList<GuidePage> m_pages;
};

void TestGuidePages::initTestCase()
{
    TestCase::initTestCase();
    for (const QString& name : pageNames()) {
        m_pages.append(GuidePage(folder + u'/' + name));
    }
    QVERIFY(m_pages.size() > pageCount);
}

void TestGuidePages::theProgramThatWasBuiltFindsIt()
{
    QCOMPARE(Guide(QStringLiteral(TESSEL_BUILD_FOLDER)).folder(), QDir::cleanPath(folder));
}

void TestGuidePages::everyStepHasItsPage()
{
    for (int step = 1; step <= pageCount; ++step) {
        const QString name = QStringLiteral("step-%1.html").arg(step);
        QVERIFY2(pageNames().contains(name), qPrintable(name));
    }
}

void TestGuidePages::everyPageIsWellFormed()
{
    for (const GuidePage& page : m_pages) {
        QVERIFY2(page.fault.isEmpty(), qPrintable(page.name + u' ' + page.fault));
        QCOMPARE(page.elements.count(QStringLiteral("h1")), 1);
    }
}

void TestGuidePages::everyPageTellsTheVersionOnce()
{
    for (const GuidePage& page : m_pages) {
        QCOMPARE(page.text.count(QStringLiteral("Tessel " TESSEL_PROJECT_VERSION)), 1);
        QVERIFY2(!page.text.contains(u'@'), qPrintable(page.name));
    }
}

void TestGuidePages::everyLinkLeadsSomewhere()
{
    QStringList targets{QStringLiteral("guide.css")};
    for (const GuidePage& page : m_pages) {
        targets.append(page.name);
        for (const QString& place : page.places) {
            targets.append(page.name + u'#' + place);
        }
    }
    for (const GuidePage& page : m_pages) {
        for (const QString& link : page.links) {
            const QString target = link.startsWith(u'#') ? page.name + link : link;
            QVERIFY2(targets.contains(target), qPrintable(page.name + u' ' + link));
        }
    }
    QVERIFY(QFile::exists(folder + QStringLiteral("/guide.css")));
}

void TestGuidePages::everyPageIsReachedFromTheFirst()
{
    for (const GuidePage& page : m_pages) {
        if (page.name != u"index.html") {
            continue;
        }
        for (const QString& name : pageNames()) {
            QVERIFY2(name == page.name || page.links.contains(name), qPrintable(name));
        }
    }
}

void TestGuidePages::everyPictureIsThereAndDescribed()
{
    for (const GuidePage& page : m_pages) {
        for (const ShownPicture& picture : page.pictures) {
            const QImage image(folder + u'/' + picture.file);
            QVERIFY2(!image.isNull(), qPrintable(page.name + u' ' + picture.file));
            QCOMPARE(picture.size, image.size());
            QVERIFY2(picture.description.size() > 20, qPrintable(picture.file));
        }
    }
}

void TestGuidePages::everyPictureIsShown()
{
    QStringList shown;
    for (const GuidePage& page : m_pages) {
        for (const ShownPicture& picture : page.pictures) {
            shown.append(picture.file);
        }
    }
    const QDir pictures(QStringLiteral(TESSEL_SOURCE_FOLDER "/docs/guide/pictures"));
    for (const QString& file : pictures.entryList(QDir::Files)) {
        QVERIFY2(shown.contains(QStringLiteral("pictures/") + file), qPrintable(file));
    }
}

void TestGuidePages::noPageNeedsANetworkOrRunsAScript()
{
    for (const GuidePage& page : m_pages) {
        QVERIFY2(!page.elements.contains(QStringLiteral("script")), qPrintable(page.name));
        for (const QString& attribute : page.attributes) {
            const QString said = page.name + u' ' + attribute;
            QVERIFY2(!attribute.contains(QStringLiteral("//")), qPrintable(said));
            QVERIFY2(!attribute.startsWith(QStringLiteral("on")), qPrintable(said));
        }
    }
    QFile style(folder + QStringLiteral("/guide.css"));
    QVERIFY(style.open(QIODevice::ReadOnly));
    const QByteArray rules = style.readAll();
    QVERIFY(!rules.contains("url(") && !rules.contains("@import"));
}

void TestGuidePages::everyQuotedTextIsTheProgramsOwn()
{
    const QString root = QStringLiteral(TESSEL_SOURCE_FOLDER "/");
    QStringList folders;
    for (const char* name : {"app", "discovery", "hub", "look", "pages", "tool"}) {
        folders.append(root + QLatin1String(name));
    }
    const ProgramTexts texts(folders);
    QVERIFY(texts.count() > 500);
    // The buttons of message boxes are Qt's.
    const QStringList buttons{QStringLiteral("Yes"), QStringLiteral("No")};
    int quoted = 0;
    for (const GuidePage& page : m_pages) {
        for (const QString& text : page.screenTexts) {
            QVERIFY2(buttons.contains(text) || texts.contain(text),
                     qPrintable(page.name + QStringLiteral(": ") + text));
            ++quoted;
        }
    }
    QVERIFY(quoted > 100);
    QVERIFY(!texts.contain(QStringLiteral("No such text is shown by anything.")));
}

void TestGuidePages::itIsSmall()
{
    qint64 size = 0;
    for (const QString& place : {folder, folder + QStringLiteral("/pictures")}) {
        for (const QFileInfo& file : QDir(place).entryInfoList(QDir::Files)) {
            size += file.size();
        }
    }
    QVERIFY2(size < 1500000, qPrintable(QString::number(size)));
}

TESSEL_TEST_MAIN(TestGuidePages)
#include "tst_guidepages.moc"
