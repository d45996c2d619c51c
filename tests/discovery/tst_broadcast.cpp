// Discovery over a real broadcast. This program is all three parties: the test that CTest runs, and
// inside the two ends of a network of its own the hall ("--hall SCENARIO") and the wizard
// ("--wizard SCENARIO").
#include "broadcasthall.h"
#include "broadcastwizard.h"
#include "hall.h"
#include "largehall.h"
#include "testcase.h"

#include <QDir>
#include <QProcess>
#include <QTest>
#include <QTextStream>
#include <QUuid>

class TestBroadcast : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void acrossTheNetwork_data();
    void acrossTheNetwork();
    void theScriptReturnsTheWizardsExitCode();
    void theScriptTellsAHallThatEndsBeforeItIsReady();
    void theScriptTellsWhyThereAreNoNamespaces();
    void nothingStaysBehindWhenTheScriptEnds_data();
    void nothingStaysBehindWhenTheScriptEnds();
};

namespace {

constexpr int refused = 77;
constexpr int patienceMs = 120000;

const QString script = QStringLiteral(TESSEL_WITH_NETWORK);

/// A run of the script that gives two commands a network.
struct NetworkRun
{
    explicit NetworkRun(const QStringList& arguments)
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(script, arguments);
    }

    int exitCode()
    {
        process.waitForFinished(patienceMs);
        output = process.readAll();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QString reason() const { return QString::fromUtf8(output).trimmed(); }

    QProcess process;
    QByteArray output;
};

QStringList shell(const QString& command)
{
    return {QStringLiteral("sh"), QStringLiteral("-c"), command};
}

QStringList bothEnds(const QString& hall, const QString& wizard)
{
    return shell(hall) + QStringList{QStringLiteral("--")} + shell(wizard);
}

// The processes of this machine that carry the text in their command line.
int processesWith(const QString& text)
{
    int count = 0;
    const QDir processes(QStringLiteral("/proc"));
    for (const QString& process : processes.entryList({QStringLiteral("[0-9]*")})) {
        QFile commandLine(processes.filePath(process) + QStringLiteral("/cmdline"));
        if (commandLine.open(QIODevice::ReadOnly) &&
            commandLine.readAll().contains(text.toUtf8())) {
            ++count;
        }
    }
    return count;
}

int sayReadyAndRun()
{
    QTextStream(stdout) << "ready" << Qt::endl;
    return QCoreApplication::exec();
}

// Ends at the first thing that is not as the hall wants it, so that the wizard's end fails.
int runSimulatedHall()
{
    Hall hall(largeHall());
    QObject::connect(&hall, SIGNAL(differenceFound(QString, QString)), QCoreApplication::instance(),
                     SLOT(quit()));
    QString error;
    const int code = hall.start(&error) ? sayReadyAndRun() : 1;
    QTextStream(stdout) << error << hall.differences().join(u'\n') << Qt::endl;
    return code;
}

int runHall(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QString scenario = QString::fromLocal8Bit(argv[2]);
    if (scenario == simulatedHallScenario) {
        return runSimulatedHall();
    }
    BroadcastHall hall;
    return hall.open(scenario) ? sayReadyAndRun() : 1;
}

} // namespace

void TestBroadcast::acrossTheNetwork_data()
{
    QTest::addColumn<QString>("scenario");
    const QStringList scenarios = BroadcastHall::scenarios() + QStringList{simulatedHallScenario};
    for (const QString& scenario : scenarios) {
        QTest::newRow(qPrintable(scenario)) << scenario;
    }
}

void TestBroadcast::acrossTheNetwork()
{
    QFETCH(const QString, scenario);
    const QString self = QCoreApplication::applicationFilePath();
    NetworkRun run({self, QStringLiteral("--hall"), scenario, QStringLiteral("--"), self,
                    QStringLiteral("--wizard"), scenario});
    const int code = run.exitCode();
    if (code == refused) {
        QSKIP(qPrintable(run.reason()));
    }
    QVERIFY2(code == 0, run.output.constData());
}

void TestBroadcast::theScriptReturnsTheWizardsExitCode()
{
    NetworkRun run(bothEnds(QStringLiteral("echo ready; sleep 1000"), QStringLiteral("exit 5")));
    const int code = run.exitCode();
    if (code == refused) {
        QSKIP(qPrintable(run.reason()));
    }
    QCOMPARE(code, 5);
}

void TestBroadcast::theScriptTellsAHallThatEndsBeforeItIsReady()
{
    NetworkRun run(bothEnds(QStringLiteral("echo not yet"), QStringLiteral("exit 0")));
    const int code = run.exitCode();
    if (code == refused) {
        QSKIP(qPrintable(run.reason()));
    }
    QCOMPARE(code, 70);
    QVERIFY(run.reason().contains(QStringLiteral("the hall ended before it was ready")));
}

void TestBroadcast::theScriptTellsWhyThereAreNoNamespaces()
{
    // A system without the tools stands for every system that cannot.
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/nonexistent"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("/bin/bash"), QStringList{script} + bothEnds({}, {}));
    QVERIFY(process.waitForFinished(patienceMs));
    QCOMPARE(process.exitCode(), refused);
    QVERIFY(process.readAll().contains("with-network: the program 'ip' is missing"));
}

void TestBroadcast::nothingStaysBehindWhenTheScriptEnds_data()
{
    QTest::addColumn<bool>("isKilled");
    QTest::newRow("asked to end") << false;
    QTest::newRow("killed") << true;
}

void TestBroadcast::nothingStaysBehindWhenTheScriptEnds()
{
    QFETCH(const bool, isKilled);
    const QString mark = QUuid::createUuid().toString(QUuid::WithoutBraces);
    NetworkRun run(bothEnds(QStringLiteral("echo ready; sleep 1000; echo ") + mark,
                            QStringLiteral("echo running; sleep 1000; echo ") + mark));
    while (!run.output.contains("running") && run.process.waitForReadyRead()) {
        run.output += run.process.readAll();
    }
    if (run.process.state() == QProcess::NotRunning) {
        QCOMPARE(run.process.exitCode(), refused);
        QSKIP(qPrintable(run.reason()));
    }
    QVERIFY(processesWith(mark) >= 2);
    isKilled ? run.process.kill() : run.process.terminate();
    QVERIFY(run.process.waitForFinished());
    QTRY_COMPARE(processesWith(mark), 0);
}

int main(int argc, char** argv)
{
    const QByteArray part(argc == 3 ? argv[1] : "");
    if (part == "--hall") {
        return runHall(argc, argv);
    }
    if (part == "--wizard") {
        BroadcastWizard wizard;
        return runTestCase(wizard, argc - 1, argv + 1);
    }
    TestBroadcast test;
    return runTestCase(test, argc, argv);
}

#include "tst_broadcast.moc"
