#include "testcase.h"

#include <QFile>
#include <QProcess>
#include <QTest>

namespace {

constexpr int patienceMs = 10000;

struct Run
{
    int exitCode = -1;
    QString output;
    QString errors;
};

QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    return environment;
}

/// The program run to its end where there is no display.
Run runWithoutDisplay(const QStringList& arguments)
{
    QProcess program;
    program.setProcessEnvironment(withoutDisplay());
    program.start(QStringLiteral(TESSEL_PROGRAM), arguments);
    if (!program.waitForFinished(patienceMs) || program.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

/// What the wizard says of its arguments, once it has said that many lines.
QStringList told(const QStringList& arguments, qsizetype lines)
{
    QProcess program;
    program.start(QStringLiteral(TESSEL_PROGRAM), arguments);
    QByteArray said;
    // A window that opens without a display has something to say, too.
    const auto told = [&] {
        said += program.readAllStandardError();
        return QString::fromUtf8(said).split(u'\n').filter(QStringLiteral("tessel: "));
    };
    const bool came = QTest::qWaitFor([&] { return told().size() >= lines; }, patienceMs);
    program.kill();
    program.waitForFinished();
    return came ? told() : QStringList();
}

QString helpText()
{
    return runWithoutDisplay({QStringLiteral("--help")}).output;
}

} // namespace

/// The built program, as a person starts it from a terminal.
class TestProgram : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpNeedsNoDisplay_data();
    void helpNeedsNoDisplay();
    void helpFitsATerminal();
    void versionIsTheProjects();
    void pageOfTheCommandLineShowsTheHelp();
    void outputThatCannotBeWrittenIsAFailure();
    void eachUnknownArgumentIsToldOnce();
    void argumentsThatAreUsedAreNotTold();
    void ofTwoFilesTheSecondIsTold();
    void aLogThatCannotBeWrittenIsTold();
    void passwordsAreNotTold();
};

void TestProgram::helpNeedsNoDisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("long") << QStringList{QStringLiteral("--help")};
    QTest::newRow("short") << QStringList{QStringLiteral("-h")};
    QTest::newRow("behind others")
        << QStringList{QStringLiteral("-N:1"), QStringLiteral("--bogus"), QStringLiteral("--help")};
}

void TestProgram::helpNeedsNoDisplay()
{
    QFETCH(const QStringList, arguments);
    const Run run = runWithoutDisplay(arguments);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.startsWith(u"Usage: tessel "), qPrintable(run.output));
    for (const char* word : {"FILE.tessel", "-N:", "-D:", "--log", "--help", "--version"}) {
        QVERIFY2(run.output.contains(QLatin1String(word)), word);
    }
}

void TestProgram::helpFitsATerminal()
{
    const QStringList lines = helpText().split(u'\n');
    // The line after the last belongs to the next prompt.
    QVERIFY(lines.size() > 1 && lines.size() <= 24);
    for (const QString& line : lines) {
        QVERIFY2(line.size() <= 80, qPrintable(line));
    }
}

void TestProgram::versionIsTheProjects()
{
    const Run run = runWithoutDisplay({QStringLiteral("--version")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output, QStringLiteral("tessel " TESSEL_PROJECT_VERSION "\n"));
}

void TestProgram::pageOfTheCommandLineShowsTheHelp()
{
    QFile page(QStringLiteral(TESSEL_COMMANDLINE_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    QVERIFY(text.contains(QStringLiteral("```\n") + helpText() + QStringLiteral("```\n")));
}

void TestProgram::outputThatCannotBeWrittenIsAFailure()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("this system has no file that is always full");
    }
    QProcess program;
    program.setStandardOutputFile(QStringLiteral("/dev/full"));
    program.start(QStringLiteral(TESSEL_PROGRAM), {QStringLiteral("--help")});
    QVERIFY(program.waitForFinished(patienceMs));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
}

void TestProgram::eachUnknownArgumentIsToldOnce()
{
    const QStringList expected{QStringLiteral("tessel: argument ignored: --bogus"),
                               QStringLiteral("tessel: argument ignored: --part=..."),
                               QStringLiteral("tessel: argument ignored: stray")};
    const QStringList arguments{QStringLiteral("--bogus"), QStringLiteral("-N:1"),
                                QStringLiteral("--part=2"), QStringLiteral("stray")};
    QCOMPARE(told(arguments, expected.size()), expected);
}

void TestProgram::argumentsThatAreUsedAreNotTold()
{
    // The last argument shows that it has come to the end of them.
    const QStringList arguments{
        QStringLiteral("-platform"), QStringLiteral("offscreen"),
        QStringLiteral("-style"),    QStringLiteral("fusion"),
        QStringLiteral("-N:1"),      QStringLiteral("-D:PX-HB/A/2.1/127.0.0.1/00:A0:DE:10:00:01"),
        QStringLiteral("--last")};
    QCOMPARE(told(arguments, 1), QStringList(QStringLiteral("tessel: argument ignored: ...")));
}

void TestProgram::ofTwoFilesTheSecondIsTold()
{
    const QStringList arguments{QStringLiteral("-N:1"), QStringLiteral("halls/a.tessel"),
                                QStringLiteral("halls/b.tessel")};
    QCOMPARE(told(arguments, 1), QStringList(QStringLiteral("tessel: argument ignored: b.tessel")));
}

void TestProgram::aLogThatCannotBeWrittenIsTold()
{
    const QStringList said =
        told({QStringLiteral("-N:1"), QStringLiteral("--log"), QStringLiteral("/missing/log")}, 1);
    QCOMPARE(said.size(), 1);
    QVERIFY2(said.first().startsWith(u"tessel: cannot write the log /missing/log: "),
             qPrintable(said.first()));
}

void TestProgram::passwordsAreNotTold()
{
    const QStringList expected{QStringLiteral("tessel: argument ignored: -D:..."),
                               QStringLiteral("tessel: argument ignored: ...")};
    const QStringList arguments{QStringLiteral("-N:1"),
                                QStringLiteral("-D:XY/A/2.1/127.0.0.1/00:A0:DE:10:00:01//top"),
                                QStringLiteral("secret")};
    QCOMPARE(told(arguments, expected.size()), expected);
}

TESSEL_TEST_MAIN(TestProgram)
#include "tst_program.moc"
