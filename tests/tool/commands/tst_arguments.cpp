#include "arguments.h"
#include "commandhelp.h"
#include "testcase.h"

#include <QTest>

namespace {

CommandSyntax sampleSyntax()
{
    return {{{QStringLiteral("FILE"), QStringLiteral("a file")}},
            {{{QStringLiteral("json")}, QStringLiteral("a switch")},
             {{QStringLiteral("o"), QStringLiteral("output")},
              QStringLiteral("a value"),
              QStringLiteral("PATH")},
             {{QStringLiteral("hub")},
              QStringLiteral("many values"),
              QStringLiteral("ADDRESS"),
              true}}};
}

Arguments read(const char* line)
{
    return {sampleSyntax(), QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts)};
}

} // namespace

/// Arguments of a command, held against its syntax.
class TestArguments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormOfAnOptionIsRead();
    void optionsThatAreNotGivenAreEmpty();
    void wrongArgumentsAreToldInOneLine_data();
    void wrongArgumentsAreToldInOneLine();
    void helpComesBeforeFaults();
    void whatFollowsTwoDashesIsNoOption();
};

void TestArguments::everyFormOfAnOptionIsRead()
{
    const Arguments arguments = read("--hub 1 file --json --hub=2 -o out");
    QCOMPARE(arguments.fault(), QString());
    QCOMPARE(arguments.operand(0), QStringLiteral("file"));
    QVERIFY(arguments.has(QStringLiteral("json")));
    QCOMPARE(arguments.value(QStringLiteral("o")), QStringLiteral("out"));
    QCOMPARE(arguments.values(QStringLiteral("hub")),
             QStringList({QStringLiteral("1"), QStringLiteral("2")}));
    QCOMPARE(read("file --output out").value(QStringLiteral("o")), QStringLiteral("out"));
    QCOMPARE(read("file -oout").value(QStringLiteral("o")), QStringLiteral("out"));
}

void TestArguments::optionsThatAreNotGivenAreEmpty()
{
    const Arguments arguments = read("file");
    QVERIFY(!arguments.has(QStringLiteral("json")) && !arguments.has(QStringLiteral("o")));
    QCOMPARE(arguments.value(QStringLiteral("o")), QString());
    QCOMPARE(arguments.values(QStringLiteral("hub")), QStringList());
}

void TestArguments::wrongArgumentsAreToldInOneLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* line, const char* fault) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(fault);
    };
    row("--json", "FILE is missing");
    row("one two", "one argument too many: two");
    row("file --bogus", "unknown option \"--bogus\"");
    row("file -x", "unknown option \"-x\"");
    row("file --it's --json=a", "unknown option \"--it's\"");
    row("file -o", "-o needs a value: PATH");
    row("file --output", "-o needs a value: PATH");
    row("file --output=", "-o needs a value: PATH");
    row("file --json=yes", "--json takes no value");
    row("file --json --json", "--json is given more than once");
    row("file -o a --output b", "-o is given more than once");
}

void TestArguments::wrongArgumentsAreToldInOneLine()
{
    QFETCH(const QString, line);
    QFETCH(const QString, fault);
    const Arguments arguments(sampleSyntax(), line.split(u' '));
    QVERIFY2(arguments.fault().startsWith(fault), qPrintable(arguments.fault()));
    QVERIFY(!arguments.fault().contains(u'\n'));
    QVERIFY(!Arguments(sampleSyntax(), {QStringLiteral("file"), QStringLiteral("-o"), QString()})
                 .fault()
                 .isEmpty());
}

void TestArguments::helpComesBeforeFaults()
{
    for (const char* line : {"-h", "--help", "--bogus --help", "a b c -h"}) {
        const Arguments arguments = read(line);
        QVERIFY2(arguments.wantsHelp(), line);
        QCOMPARE(arguments.fault(), QString());
    }
}

void TestArguments::whatFollowsTwoDashesIsNoOption()
{
    const Arguments arguments = read("-- --help");
    QVERIFY(!arguments.wantsHelp());
    QCOMPARE(arguments.operand(0), QStringLiteral("--help"));
}

TESSEL_TEST_MAIN(TestArguments)
#include "tst_arguments.moc"
