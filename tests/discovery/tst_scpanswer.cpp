#include "scpanswer.h"
#include "testcase.h"

#include <QTest>

class TestScpAnswer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void quotedText_data();
    void quotedText();
    void fourthWord_data();
    void fourthWord();
    void currentPreset_data();
    void currentPreset();
};

void TestScpAnswer::quotedText_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* name, const QString& answer, const QString& value) {
        QTest::newRow(name) << answer << value;
    };
    row("the device name stands between the quotes",
        QStringLiteral("OK devinfo devicename \"Room-A\"\n"), QStringLiteral("Room-A"));
    row("a name may hold spaces and umlauts", QStringLiteral("OK devinfo devicename \"Säal 1 b\""),
        QStringLiteral("Säal 1 b"));
    row("only the first pair of quotes counts", QStringLiteral("x \"a\" \"b\""),
        QStringLiteral("a"));
    row("an answer without quotes is empty", QStringLiteral("OK devinfo devicename Room-A\n"),
        QString());
    row("one quote alone is empty", QStringLiteral("OK devinfo devicename \"Room-A\n"), QString());
    row("nothing between the quotes is empty", QStringLiteral("OK devinfo devicename \"\"\n"),
        QString());
    row("an empty answer is empty", QString(), QString());
    row("a lone quote is empty", QStringLiteral("\""), QString());
    row("a line end between the quotes belongs to the value", QStringLiteral("\"a\nb\""),
        QStringLiteral("a\nb"));
}

void TestScpAnswer::quotedText()
{
    QFETCH(const QString, answer);
    QTEST(ScpAnswer::quotedText(answer), "value");
}

void TestScpAnswer::fourthWord_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("number");
    const auto row = [](const char* name, const char* answer, const char* word, int number) {
        QTest::newRow(name) << QString::fromLatin1(answer) << QString::fromLatin1(word) << number;
    };
    row("four words", "NOTIFY ssrecall_ex config 4", "4", 4);
    row("a fifth word is not looked at", "NOTIFY ssrecall_ex config 0 4", "0", 0);
    row("LF is not part of the word", "OK sscurrent_ex config 2\n", "2", 2);
    row("CR LF is not part of the word", "OK sscurrent_ex config 12\r\n", "12", 12);
    row("a second line is not looked at", "OK sscurrent_ex config 2\nNOTIFY x y 3\n", "2", 2);
    row("a word of a second line is not the fourth", "OK sscurrent_ex config\n3 4\n", "", 0);
    row("two spaces enclose an empty word", "OK sscurrent_ex config  7", "", 0);
    row("three words", "OK sscurrent_ex config", "", 0);
    row("three words and a trailing space", "OK sscurrent_ex config ", "", 0);
    row("no words", "", "", 0);
    row("not a number", "NOTIFY ssrecall_ex config four", "four", 0);
    row("digits and letters are no number", "NOTIFY ssrecall_ex config 4a", "4a", 0);
    row("a negative number", "NOTIFY ssrecall_ex config -4", "-4", -4);
    row("beyond an int", "NOTIFY ssrecall_ex config 99999999999", "99999999999", 0);
}

void TestScpAnswer::fourthWord()
{
    QFETCH(const QString, answer);
    QTEST(ScpAnswer::fourthWord(answer), "word");
    QTEST(ScpAnswer::fourthWordNumber(answer), "number");
}

void TestScpAnswer::currentPreset_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("preset");
    const auto row = [](const char* name, const char* answer, const char* preset) {
        QTest::newRow(name) << QString::fromLatin1(answer) << QString::fromLatin1(preset);
    };
    row("OK sscurrent_ex config 3 yields 3", "OK sscurrent_ex config 3", "3");
    row("the line's end is dropped", "OK sscurrent_ex config 3\r\n", "3");
    row("ERROR sscurrent_ex config 3 yields empty", "ERROR sscurrent_ex config 3", "");
    row("NOTIFY is not an answer", "NOTIFY sscurrent_ex config 3", "");
    row("OKAY is not OK", "OKAY sscurrent_ex config 3", "");
    row("exactly three words have no fourth", "OK sscurrent_ex config", "");
    row("exactly three words and a line end", "OK sscurrent_ex config\r\n", "");
    row("two words", "OK 3", "");
    row("a text stays as it is", "OK sscurrent_ex config \"A\"", "\"A\"");
    row("empty", "", "");
}

void TestScpAnswer::currentPreset()
{
    QFETCH(const QString, answer);
    QTEST(ScpAnswer::currentPreset(answer), "preset");
}

TESSEL_TEST_MAIN(TestScpAnswer)
#include "tst_scpanswer.moc"
