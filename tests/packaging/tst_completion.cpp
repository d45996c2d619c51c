#include "arguments.h"
#include "commandtable.h"
#include "installedtree.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u' ');
}

/// The options that a help names, in the order of the alphabet.
QStringList optionsIn(const QString& help)
{
    static const QRegularExpression option(QStringLiteral("(?<![\\w-])--?[a-zA-Z][a-z-]*:?"));
    QStringList found;
    QRegularExpressionMatchIterator matches = option.globalMatch(help);
    while (matches.hasNext()) {
        found.append(matches.next().captured());
    }
    found.removeDuplicates();
    found.sort();
    return found;
}

} // namespace

/// What bash proposes when the tab key is pressed, by the installed files.
class TestCompletion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void everyCommandIsProposed();
    void everyOptionOfEveryCommandIsProposed_data();
    void everyOptionOfEveryCommandIsProposed();
    void everyOptionInTheHelpIsProposed_data();
    void everyOptionInTheHelpIsProposed();
    void filesAreProposedByTheirEnding_data();
    void filesAreProposedByTheirEnding();
    void interfacesOfThisComputerAreProposed_data();
    void interfacesOfThisComputerAreProposed();
    void nothingIsProposedWhereNothingIsKnown_data();
    void nothingIsProposedWhereNothingIsKnown();

private:
    /// What is proposed for the last of the words, sorted.
    QStringList proposed(const QStringList& line) const;

    std::optional<InstalledTree> m_installation;
    std::optional<QTemporaryDir> m_folder; ///< the one in which the tab key is pressed
    QString m_bash;
};

void TestCompletion::initTestCase()
{
    TestCase::initTestCase();
    m_bash = QStandardPaths::findExecutable(QStringLiteral("bash"));
    if (m_bash.isEmpty()) {
        QSKIP("this system has no bash");
    }
    m_installation.emplace();
    QVERIFY2(m_installation->fault().isEmpty(), qPrintable(m_installation->fault()));
}

void TestCompletion::cleanupTestCase()
{
    m_installation.reset();
}

void TestCompletion::init()
{
    TestCase::init();
    m_folder.emplace();
    for (const char* name : {"hall.tessel", "hall.json", "notes.txt"}) {
        QFile file(m_folder->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("plans")));
}

void TestCompletion::cleanup()
{
    m_folder.reset();
}

QStringList TestCompletion::proposed(const QStringList& line) const
{
    // The shell calls the function that the file has announced for the line's first word.
    const QString asked =
        QStringLiteral("cd \"$1\" && source \"$2\" && shift 2 && COMP_WORDS=(\"$@\") && "
                       "COMP_CWORD=$(($# - 1)) && announced=($(complete -p \"$1\")) && "
                       "\"${announced[2]}\" && printf '%s\\n' \"${COMPREPLY[@]}\"");
    const QString file =
        m_installation->path(QStringLiteral("share/bash-completion/completions/") + line.first());
    const ProgramRun run =
        runProgram(m_bash, QStringList{QStringLiteral("-c"), asked, QStringLiteral("bash"),
                                       m_folder->path(), file} +
                               line);
    if (run.exitCode != 0 || !run.errors.isEmpty()) {
        return {QStringLiteral("FAILED"), run.errors};
    }
    QStringList words = run.output.split(u'\n', Qt::SkipEmptyParts);
    words.sort();
    return words;
}

void TestCompletion::everyCommandIsProposed()
{
    QStringList expected = words("--help --version -h");
    for (const auto& command : allCommands()) {
        expected.append(command->name());
    }
    expected.sort();
    QCOMPARE(proposed({QStringLiteral("tesselctl"), QString()}), expected);
}

void TestCompletion::everyOptionOfEveryCommandIsProposed_data()
{
    QTest::addColumn<QString>("command");
    for (const auto& command : allCommands()) {
        QTest::newRow(qPrintable(command->name())) << command->name();
    }
}

void TestCompletion::everyOptionOfEveryCommandIsProposed()
{
    QFETCH(const QString, command);
    const CommandTable commands = allCommands();
    QStringList expected = words("--help -h");
    for (const CommandOption& option : findCommand(commands, command)->syntax().options) {
        for (const QString& name : option.names) {
            expected.append(writtenOption(name));
        }
    }
    expected.sort();
    QCOMPARE(proposed({QStringLiteral("tesselctl"), command, QStringLiteral("-")}), expected);
}

void TestCompletion::everyOptionInTheHelpIsProposed_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("others");
    // Options of Qt's own, and numbers of an interface that stand beside theirs.
    QTest::newRow("tessel") << QStringLiteral("tessel") << QStringLiteral("-platform -style");
    QTest::newRow("tessel-hall") << QStringLiteral("tessel-hall") << QStringLiteral("--help-all");
}

void TestCompletion::everyOptionInTheHelpIsProposed()
{
    QFETCH(const QString, program);
    QFETCH(const QString, others);
    const ProgramRun run = runProgram(m_installation->path(QStringLiteral("bin/") + program),
                                      {QStringLiteral("--help")});
    QStringList expected = optionsIn(run.output);
    for (const QString& other : others.split(u' ')) {
        expected.removeAll(other);
    }
    QVERIFY(expected.size() > 4);
    QCOMPARE(proposed({program, QStringLiteral("-")}), expected);
}

void TestCompletion::filesAreProposedByTheirEnding_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QStringList>("files");
    const auto row = [](const char* line, const char* files) {
        QTest::newRow(line) << QStringList(words(line) + QStringList(QString())) << words(files);
    };
    row("tesselctl show", "hall.tessel plans");
    row("tesselctl walk --yes --wait 3", "hall.tessel plans");
    row("tesselctl walk --wait = 3", "hall.tessel plans");
    row("tesselctl recall 2", "hall.tessel plans");
    row("tesselctl make", "hall.json plans");
    row("tesselctl make hall.json -o", "hall.tessel plans");
    row("tesselctl report hall.tessel -o", "hall.json hall.tessel notes.txt plans");
    row("tesselctl report hall.tessel --paper", "a4 letter");
    row("tesselctl plan hall.tessel --files", "plans");
    row("tessel", "hall.tessel plans");
    row("tessel --log", "hall.json hall.tessel notes.txt plans");
    row("tessel-hall", "hall.json plans");
    row("tessel-hall --store", "plans");
}

void TestCompletion::filesAreProposedByTheirEnding()
{
    QFETCH(const QStringList, line);
    QTEST(proposed(line), "files");
}

void TestCompletion::interfacesOfThisComputerAreProposed_data()
{
    QTest::addColumn<QStringList>("line");
    // The shell makes a word of its own out of "=".
    for (const char* line : {"tesselctl find --interface l", "tesselctl find --interface = l"}) {
        QTest::newRow(line) << words(line);
    }
}

void TestCompletion::interfacesOfThisComputerAreProposed()
{
    QFETCH(const QStringList, line);
    if (!QDir(QStringLiteral("/sys/class/net/lo")).exists()) {
        QSKIP("this system does not tell its interfaces");
    }
    QVERIFY(proposed(line).contains(QStringLiteral("lo")));
}

void TestCompletion::nothingIsProposedWhereNothingIsKnown_data()
{
    QTest::addColumn<QStringList>("line");
    for (const char* line : {"tesselctl recall", "tesselctl show hall.tessel", "tesselctl bogus",
                             "tesselctl find --probe", "tessel-hall --password"}) {
        QTest::newRow(line) << QStringList(words(line) + QStringList(QString()));
    }
}

void TestCompletion::nothingIsProposedWhereNothingIsKnown()
{
    QFETCH(const QStringList, line);
    QCOMPARE(proposed(line), QStringList());
}

TESSEL_TEST_MAIN(TestCompletion)
#include "tst_completion.moc"
