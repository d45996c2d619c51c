#include "consolerun.h"
#include "hall.h"
#include "installablehall.h"
#include "quickhall.h"
#include "testcase.h"

#include <QTest>

namespace {

const QString wizard = QStringLiteral(TESSEL_PROGRAM);
const QString tool = QStringLiteral(TESSEL_TOOL);
const QString hallProgram = QStringLiteral(TESSEL_HALL_PROGRAM);
const QString hubAddress = QStringLiteral("127.35.1.1");

ConsoleRun::Streams streamsOf(const QString& program)
{
    return program == wizard ? ConsoleRun::Streams::NotGiven : ConsoleRun::Streams::Given;
}

HallDescription oneHub()
{
    HallDescription description = quickHall(hubAddress, 1, 0);
    description.hubs[0].label = QStringLiteral("Stage");
    return description;
}

} // namespace

/// The programs as a person starts them in a console: a character set of its own, keys that are
/// told in a way of their own.
class TestConsole : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpAndVersionAreShown_data();
    void helpAndVersionAreShown();
    void lettersAreShownAsTheyAreMeant();
    void theWizardsOwnLettersAreShownAsTheyAreMeant();
    void ctrlCClosesTheHall();
    void aTakenAddressIsTold();
    void aPasswordIsTypedUnseen();
    void ctrlCAtThePromptShowsAgainWhatIsTyped();
};

void TestConsole::helpAndVersionAreShown_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("shown");
    const QString help = QStringLiteral("--help");
    const QString version = QStringLiteral("--version");
    QTest::newRow("wizard, help") << wizard << help << QStringLiteral("Usage: tessel ");
    QTest::newRow("wizard, version")
        << wizard << version << QStringLiteral("tessel " TESSEL_PROJECT_VERSION);
    QTest::newRow("tool, help") << tool << help << QStringLiteral("Usage: tesselctl ");
    QTest::newRow("tool, version")
        << tool << version << QStringLiteral("tesselctl " TESSEL_PROJECT_VERSION);
    QTest::newRow("hall, help") << hallProgram << help << QStringLiteral("--discovery-listen");
    QTest::newRow("hall, version")
        << hallProgram << version << QStringLiteral("tessel-hall " TESSEL_PROJECT_VERSION);
}

void TestConsole::helpAndVersionAreShown()
{
    QFETCH(const QString, program);
    QFETCH(const QString, argument);
    QFETCH(const QString, shown);
    ConsoleRun run(program, {argument}, streamsOf(program));
    QCOMPARE(run.ended(), 0);
    QVERIFY2(run.screen().contains(shown), run.screen().toUtf8().constData());
}

void TestConsole::lettersAreShownAsTheyAreMeant()
{
    const QString file = QString::fromUtf8("Größe Łódź.tessel");
    ConsoleRun run(tool, {QStringLiteral("show"), file});
    QCOMPARE(run.ended(), 3);
    QVERIFY2(run.screen().contains(file), run.screen().toUtf8().constData());
}

void TestConsole::theWizardsOwnLettersAreShownAsTheyAreMeant()
{
    const QString argument = QString::fromUtf8("--Größe-Łódź");
    ConsoleRun run(wizard, {QStringLiteral("-N:1"), argument}, streamsOf(wizard));
    QVERIFY2(run.hasShown(QStringLiteral("tessel: argument ignored: ") + argument),
             run.screen().toUtf8().constData());
}

void TestConsole::ctrlCClosesTheHall()
{
    ConsoleRun run(hallProgram,
                   {QStringLiteral("--hubs"), QStringLiteral("1"), QStringLiteral("--peripherals"),
                    QStringLiteral("0"), QStringLiteral("--base"), hubAddress});
    QVERIFY2(run.hasShown(QStringLiteral("Ctrl+C closes the hall.")),
             run.screen().toUtf8().constData());
    ConsoleRun::pressCtrlC();
    QCOMPARE(run.ended(), 0);
    QVERIFY2(run.screen().contains(QStringLiteral("Every message was as prescribed.")),
             run.screen().toUtf8().constData());
}

void TestConsole::aTakenAddressIsTold()
{
    Hall hall(oneHub());
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    ConsoleRun run(hallProgram, {QStringLiteral("--base"), hubAddress});
    QCOMPARE(run.ended(), 2);
    QVERIFY2(run.screen().contains(QStringLiteral("tessel-hall: cannot listen on 127.35.1.1 port")),
             run.screen().toUtf8().constData());
}

void TestConsole::aPasswordIsTypedUnseen()
{
    const InstallableHall file(oneHub());
    Hall hall(oneHub());
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    ConsoleRun run(tool, {QStringLiteral("install"), file.path(), QStringLiteral("--no-search")});
    QVERIFY2(run.hasShown(QStringLiteral("password of Stage")), run.screen().toUtf8().constData());
    QTRY_VERIFY(!run.isEchoing());
    run.type(quickPassword() + u'\r');
    QCOMPARE(run.ended(), 0);
    QVERIFY2(!run.screen().contains(quickPassword()), run.screen().toUtf8().constData());
    QVERIFY(run.isEchoing());
    QCOMPARE(hall.hub(hubAddress)->recalledPreset(), 1);
}

void TestConsole::ctrlCAtThePromptShowsAgainWhatIsTyped()
{
    const InstallableHall file(oneHub());
    Hall hall(oneHub());
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    ConsoleRun run(tool, {QStringLiteral("install"), file.path(), QStringLiteral("--no-search")});
    QVERIFY2(run.hasShown(QStringLiteral("password of Stage")), run.screen().toUtf8().constData());
    QTRY_VERIFY(!run.isEchoing());
    ConsoleRun::pressCtrlC();
    QCOMPARE(run.ended(), 1);
    QVERIFY2(run.screen().contains(QStringLiteral("interrupted")),
             run.screen().toUtf8().constData());
    QVERIFY(run.isEchoing());
}

TESSEL_TEST_MAIN(TestConsole)
#include "tst_console.moc"
