#include "consolerun.h"
#include "hall.h"
#include "installablehall.h"
#include "quickhall.h"
#include "testcase.h"

#include <QTest>

#include <algorithm>

namespace {

const QString wizard = QStringLiteral(TESSEL_PROGRAM);
const QString tool = QStringLiteral(TESSEL_TOOL);
const QString hallProgram = QStringLiteral(TESSEL_HALL_PROGRAM);
const QString hubAddress = QStringLiteral("127.35.1.1");

ConsoleRun::Streams streamsOf(const QString& program)
{
    return program == wizard ? ConsoleRun::Streams::NotGiven : ConsoleRun::Streams::Given;
}

/// Two hubs that know quickPassword().
HallDescription twoHubs()
{
    HallDescription description = quickHall(hubAddress, 2, 0);
    description.hubs[0].label = QStringLiteral("Stage");
    description.hubs[1].label = QStringLiteral("Gallery");
    return description;
}

/// The installation of a hall, typed at by a person.
struct Installation
{
    Installation()
    {
        QString error;
        QVERIFY2(hall.start(&error), qPrintable(error));
    }

    /// Waits for the next question; hubs ask as their answers come.
    bool isAsked()
    {
        const qsizetype before = m_questions++;
        return QTest::qWaitFor([this, before] { return questions() > before && !run.isEchoing(); },
                               60000);
    }

    int installedHubs() const
    {
        const QList<SimulatedHub*> hubs = hall.hubs();
        return int(std::count_if(hubs.begin(), hubs.end(), [](const SimulatedHub* hub) {
            return hub->recalledPreset() == 1;
        }));
    }

    QByteArray shown() const { return run.screen().toUtf8(); }

    const InstallableHall file{twoHubs()};
    Hall hall{twoHubs()};
    ConsoleRun run{tool, {QStringLiteral("install"), file.path(), QStringLiteral("--no-search")}};

private:
    qsizetype questions() const { return run.screen().count(QStringLiteral("password of ")); }

    qsizetype m_questions = 0;
};

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
    void passwordsAreTypedUnseen();
    void theKeyThatClosesLeavesAHubOut();
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
    const QString log = QString::fromUtf8("no folder/Größe Łódź.log");
    ConsoleRun run(wizard, {QStringLiteral("-N:1"), QStringLiteral("--log"), log},
                   streamsOf(wizard));
    QVERIFY2(run.hasShown(QStringLiteral("tessel: cannot write the log ") + log),
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
    Hall hall(twoHubs());
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    ConsoleRun run(hallProgram, {QStringLiteral("--base"), hubAddress});
    QCOMPARE(run.ended(), 2);
    QVERIFY2(run.screen().contains(QStringLiteral("tessel-hall: cannot listen on 127.35.1.1 port")),
             run.screen().toUtf8().constData());
}

void TestConsole::passwordsAreTypedUnseen()
{
    Installation installation;
    for (int hub = 1; hub <= 2; ++hub) {
        QVERIFY2(installation.isAsked(), installation.shown().constData());
        installation.run.type(quickPassword() + u'\r');
    }
    QCOMPARE(installation.run.ended(), 0);
    QVERIFY2(!installation.run.screen().contains(quickPassword()),
             installation.shown().constData());
    QVERIFY(installation.run.isEchoing());
    QCOMPARE(installation.installedHubs(), 2);
}

void TestConsole::theKeyThatClosesLeavesAHubOut()
{
    Installation installation;
    QVERIFY2(installation.isAsked(), installation.shown().constData());
    installation.run.type(QStringLiteral("\x04\r"));
    QVERIFY2(installation.isAsked(), installation.shown().constData());
    installation.run.type(quickPassword() + u'\r');
    QCOMPARE(installation.run.ended(), 1);
    QCOMPARE(installation.installedHubs(), 1);
}

void TestConsole::ctrlCAtThePromptShowsAgainWhatIsTyped()
{
    Installation installation;
    QVERIFY2(installation.isAsked(), installation.shown().constData());
    ConsoleRun::pressCtrlC();
    QCOMPARE(installation.run.ended(), 1);
    QVERIFY2(installation.run.screen().contains(QStringLiteral("interrupted")),
             installation.shown().constData());
    QVERIFY(installation.run.isEchoing());
}

TESSEL_TEST_MAIN(TestConsole)
#include "tst_console.moc"
