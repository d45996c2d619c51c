#include "guide.h"
#include "openedpages.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A folder with programs, and with a guide in each of the places named.
class Installation
{
public:
    explicit Installation(const QStringList& places)
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("bin"));
        for (const QString& place : places) {
            QDir(m_folder.path()).mkpath(place);
            QFile page(path(place) + QStringLiteral("/index.html"));
            QVERIFY(page.open(QIODevice::WriteOnly));
        }
    }

    QString path(const QString& place) const { return m_folder.filePath(place); }
    Guide guide() const { return Guide(path(QStringLiteral("bin"))); }

private:
    QTemporaryDir m_folder;
};

const QString beside = QStringLiteral("bin/guide");
const QString shared = QStringLiteral("share/tessel/guide");
#ifdef Q_OS_WIN
const QString installed = beside;
#else
const QString installed = shared;
#endif

} // namespace

class TestGuide : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itIsFoundByTheProgramsPlace_data();
    void itIsFoundByTheProgramsPlace();
    void aFolderWithoutPagesIsNoGuide();
    void everyStepHasAPage();
    void lettersBeyondAsciiInTheFolderAreKept();
    void whereItIsNotInstalledItsPlaceIsTold();
    void whereNothingOpensItThePageIsTold();
};

void TestGuide::itIsFoundByTheProgramsPlace_data()
{
    QTest::addColumn<QStringList>("places");
    QTest::addColumn<QString>("found");
    QTest::newRow("beside it") << QStringList{beside} << beside;
    QTest::newRow("as it is installed") << QStringList{shared} << shared;
    QTest::newRow("both") << QStringList{shared, beside} << beside;
}

void TestGuide::itIsFoundByTheProgramsPlace()
{
    QFETCH(const QStringList, places);
    QFETCH(const QString, found);
    const Installation installation(places);
    QCOMPARE(installation.guide().folder(), installation.path(found));
}

void TestGuide::aFolderWithoutPagesIsNoGuide()
{
    const Installation installation({shared});
    QVERIFY(QDir(installation.path(QStringLiteral("bin"))).mkdir(QStringLiteral("guide")));
    QCOMPARE(installation.guide().folder(), installation.path(shared));
}

void TestGuide::everyStepHasAPage()
{
    const Installation installation({shared});
    const OpenedPages opened;
    for (int step = 1; step <= 9; ++step) {
        QCOMPARE(installation.guide().open(step), QString());
        QCOMPARE(opened.paths().value(step - 1),
                 installation.path(shared) + QStringLiteral("/step-%1.html").arg(step));
    }
}

void TestGuide::lettersBeyondAsciiInTheFolderAreKept()
{
    const QString place = QStringLiteral("Säle #1 & 50 %/guide");
    const Installation installation({place});
    const OpenedPages opened;
    const Guide guide(installation.path(QStringLiteral("Säle #1 & 50 %")));
    QCOMPARE(guide.open(1), QString());
    QCOMPARE(opened.paths(),
             QStringList{installation.path(place) + QStringLiteral("/step-1.html")});
}

void TestGuide::whereItIsNotInstalledItsPlaceIsTold()
{
    const Installation installation({});
    const OpenedPages opened;
    QCOMPARE(installation.guide().folder(), QString());
    QCOMPARE(installation.guide().open(3),
             QStringLiteral("The guide is not installed; its place is %1.")
                 .arg(QDir::toNativeSeparators(installation.path(installed))));
    QCOMPARE(opened.paths(), QStringList());
}

void TestGuide::whereNothingOpensItThePageIsTold()
{
    const Installation installation({shared});
    // The platform of the tests knows no browser, and Windows finds no such page.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "(openDocument\\(\\) for|ShellExecute) 'file:")));
    const QString page = installation.path(shared) + QStringLiteral("/step-3.html");
    QCOMPARE(installation.guide().open(3),
             QStringLiteral("No browser opened the guide; this page of it is %1.")
                 .arg(QDir::toNativeSeparators(page)));
}

TESSEL_TEST_MAIN(TestGuide)
#include "tst_guide.moc"
