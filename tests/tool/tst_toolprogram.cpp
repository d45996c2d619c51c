#include "commandrun.h"
#include "testcase.h"
#include "toolrun.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int terminalWidth = 80;

/// The words at the beginning of the lines that tell of commands.
QStringList commandsOf(const QString& help)
{
    QStringList commands;
    for (const QString& line : help.split(u'\n')) {
        if (line.startsWith(u"  ") && !line.startsWith(u"  -") && !line.startsWith(u"   ")) {
            commands.append(line.trimmed().section(u' ', 0, 0));
        }
    }
    return commands;
}

} // namespace

/// The built tool, as a person starts it from a terminal without a display.
class TestToolProgram : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpTellsOfEveryCommand();
    void everyCommandHasItsHelp();
    void versionIsTheProjects();
    void wrongUsageIsOneLine_data();
    void wrongUsageIsOneLine();
    void outputThatCannotBeWrittenIsToldAndAFailure();
    void aHallGoesThereAndBack();
    void namesMayHaveAnyLetters();
    void whatCannotBeReadIsOneLine_data();
    void whatCannotBeReadIsOneLine();
};

void TestToolProgram::helpTellsOfEveryCommand()
{
    for (const char* option : {"--help", "-h"}) {
        const ToolRun run = runBuiltTool({QLatin1String(option)});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QString());
        QVERIFY2(run.output.startsWith(u"Usage: tesselctl "), qPrintable(run.output));
        QVERIFY(commandsOf(run.output).contains(QStringLiteral("show")));
    }
}

void TestToolProgram::everyCommandHasItsHelp()
{
    for (const QString& command : commandsOf(runBuiltTool({QStringLiteral("--help")}).output)) {
        const ToolRun run = runBuiltTool({command, QStringLiteral("--help")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QString());
        QVERIFY2(run.output.startsWith(QStringLiteral("Usage: tesselctl ") + command),
                 qPrintable(run.output));
        for (const QString& line : run.output.split(u'\n')) {
            QVERIFY2(line.size() <= terminalWidth, qPrintable(line));
        }
    }
}

void TestToolProgram::versionIsTheProjects()
{
    const ToolRun run = runBuiltTool({QStringLiteral("--version")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output, QStringLiteral("tesselctl " TESSEL_PROJECT_VERSION "\n"));
}

void TestToolProgram::wrongUsageIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QStringList& arguments, const char* reason) {
        QTest::newRow(name) << arguments << QString::fromLatin1(reason);
    };
    const QString show = QStringLiteral("show");
    row("nothing", {}, "no command is given; see tesselctl --help");
    row("an empty command", {QString()}, "no command is given");
    row("an unknown command", {QStringLiteral("bogus")}, "unknown command \"bogus\"");
    row("an unknown option", {QStringLiteral("--bogus")}, "unknown option \"--bogus\"");
    row("a command that moves the cursor", {QStringLiteral("a\x1b[2Jb\nc")},
        "unknown command \"a?[2Jb?c\"");
    row("an unknown option of a command", {show, QStringLiteral("--bogus"), show},
        "show: unknown option \"--bogus\"; see tesselctl show --help");
    row("no operand", {show}, "show: FILE is missing");
    row("an empty operand", {show, QString()}, "show: FILE is missing");
    row("two operands", {show, QStringLiteral("a"), QStringLiteral("b")},
        "show: one argument too many: b");
}

void TestToolProgram::wrongUsageIsOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const ToolRun run = runBuiltTool(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QString());
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(reason), qPrintable(run.errors));
}

void TestToolProgram::outputThatCannotBeWrittenIsToldAndAFailure()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full)) {
        QSKIP("this system has no file that is always full");
    }
    const ToolRun run = runBuiltTool({QStringLiteral("--help")}, full);
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
}

void TestToolProgram::aHallGoesThereAndBack()
{
    const QTemporaryDir folder;
    const QString text = folder.filePath(QStringLiteral("hall.json"));
    const QString hall = folder.filePath(QStringLiteral("hall.tessel"));
    const QString again = folder.filePath(QStringLiteral("again.tessel"));
    putFile(text, sampleHallText());
    const ToolRun made = runBuiltTool({QStringLiteral("make"), text, QStringLiteral("-o"), hall});
    QCOMPARE(made.errors, QString());
    QCOMPARE(made.exitCode, 0);
    const ToolRun shown = runBuiltTool({QStringLiteral("show"), hall, QStringLiteral("--json")});
    QCOMPARE(shown.errors, QString());
    QCOMPARE(shown.exitCode, 0);
    putFile(text, shown.output.toUtf8());
    QCOMPARE(runBuiltTool({QStringLiteral("make"), text, QStringLiteral("-o"), again}).exitCode, 0);
    QCOMPARE(fileAt(again), fileAt(hall));
    const ToolRun planned = runBuiltTool({QStringLiteral("plan"), hall});
    QCOMPARE(planned.errors, QString());
    QCOMPARE(planned.exitCode, 0);
}

void TestToolProgram::namesMayHaveAnyLetters()
{
    const QTemporaryDir folder;
    const QString home = folder.filePath(QString::fromUtf8("Jörg Müller"));
    QVERIFY(QDir().mkdir(home));
    const QString text = home + QString::fromUtf8("/Größe.json");
    const QString hall = home + QString::fromUtf8("/会議室 Łódź.tessel");
    putFile(text, sampleHallText());
    const ToolRun made = runBuiltTool({QStringLiteral("make"), text, QStringLiteral("-o"), hall});
    QCOMPARE(made.errors, QString());
    QCOMPARE(made.exitCode, 0);
    QVERIFY(QFile::exists(hall));
    QCOMPARE(runBuiltTool({QStringLiteral("show"), hall}).exitCode, 0);
    const QString none = home + QString::fromUtf8("/空.tessel");
    const ToolRun missing = runBuiltTool({QStringLiteral("show"), none});
    QCOMPARE(missing.exitCode, 3);
    QVERIFY2(missing.errors.startsWith(QStringLiteral("tesselctl: ") + none),
             qPrintable(missing.errors));
}

void TestToolProgram::whatCannotBeReadIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString none = QStringLiteral("none");
    QTest::newRow("show") << QStringList{QStringLiteral("show"), none};
    QTest::newRow("show a folder") << QStringList{QStringLiteral("show"), QStringLiteral("/")};
    QTest::newRow("plan") << QStringList{QStringLiteral("plan"), none};
    QTest::newRow("make") << QStringList{QStringLiteral("make"), none, QStringLiteral("-o"),
                                         QStringLiteral("none.tessel")};
}

void TestToolProgram::whatCannotBeReadIsOneLine()
{
    QFETCH(const QStringList, arguments);
    const ToolRun run = runBuiltTool(arguments);
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QString());
    QVERIFY2(isOneLine(run.errors), qPrintable(run.errors));
}

TESSEL_TEST_MAIN(TestToolProgram)
#include "tst_toolprogram.moc"
