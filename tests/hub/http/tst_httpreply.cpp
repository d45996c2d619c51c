#include "httpreply.h"
#include "testcase.h"

#include <QTest>

class TestHttpReply : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void headerAndBody_data();
    void headerAndBody();
    void status_data();
    void status();
    void contentLength_data();
    void contentLength();
    void wantsClose_data();
    void wantsClose();
    void jsonValues_data();
    void jsonValues();
};

namespace {

void rowOf(const char* name, const char* text, const char* expected)
{
    QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
}

} // namespace

void TestHttpReply::headerAndBody_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("body");

    const auto row = [](const char* name, const char* reply, const char* header, const char* body) {
        QTest::newRow(name) << QString::fromUtf8(reply) << QString::fromUtf8(header)
                            << QString::fromUtf8(body);
    };
    row("both", "A\r\nB\r\n\r\n{}", "A\r\nB", "{}");
    row("no empty line: all is header", "A\r\nB", "A\r\nB", "");
    row("nothing", "", "", "");
    row("an empty body", "A\r\n\r\n", "A", "");
    row("an empty header", "\r\n\r\n{}", "", "{}");
    row("a second empty line: no body", "A\r\n\r\nx\r\n\r\ny", "A", "");
    row("a body that begins with a line end", "A\r\n\r\n\r\nx", "A", "\r\nx");
}

void TestHttpReply::headerAndBody()
{
    QFETCH(const QString, reply);
    QTEST(HttpReply::header(reply), "header");
    QTEST(HttpReply::body(reply), "body");
}

void TestHttpReply::status_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("expected");
    rowOf("200", "HTTP/1.1 200 OK\r\nX: 1\r\n\r\n", "200");
    rowOf("201 is another status", "HTTP/1.1 201 Created\r\n\r\n", "201");
    rowOf("without a reason", "HTTP/1.1 200\r\n\r\n", "200");
    rowOf("two blanks leave the second word empty", "HTTP/1.1  200 OK\r\n\r\n", "");
    rowOf("one word", "HTTP/1.1\r\nX 200\r\n\r\n", "");
    rowOf("an empty first line", "\r\nHTTP/1.1 200 OK\r\n\r\n", "");
    rowOf("no line end at all", "HTTP/1.1 200 OK", "200");
    rowOf("nothing", "", "");
}

void TestHttpReply::status()
{
    QFETCH(const QString, reply);
    QFETCH(const QString, expected);
    QCOMPARE(HttpReply::status(reply), expected);
    QCOMPARE(HttpReply::isOk(reply), expected == QLatin1String("200"));
}

void TestHttpReply::contentLength_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<int>("expected");
    const auto row = [](const char* name, const char* header, int expected) {
        QTest::newRow(name) << QString::fromUtf8(header) << expected;
    };
    row("plain", "HTTP/1.1 200 OK\r\nContent-Length: 12", 12);
    row("none", "HTTP/1.1 200 OK", 0);
    row("zero", "X\r\nContent-Length: 0", 0);
    row("no blank", "X\r\nContent-Length:7", 7);
    row("odd blanks", "X\r\nContent-Length: \t 7  ", 7);
    row("the later of two lines counts", "X\r\nContent-Length: 5\r\nContent-Length: 9", 9);
    row("the later counts even when it is no number", "X\r\nContent-Length: 5\r\nContent-Length: x",
        0);
    row("the case of the name counts", "X\r\ncontent-length: 5", 0);
    row("the name stands at the beginning of the line", "X\r\n Content-Length: 5", 0);
    row("a second colon spoils the line", "X\r\nContent-Length: 5:6", 0);
    row("no number", "X\r\nContent-Length: five", 0);
    row("hexadecimal is no decimal number", "X\r\nContent-Length: 0x10", 0);
    row("negative", "X\r\nContent-Length: -5", -5);
    row("beyond an int", "X\r\nContent-Length: 99999999999", 0);
}

void TestHttpReply::contentLength()
{
    QFETCH(const QString, header);
    QTEST(HttpReply::contentLength(header), "expected");
}

void TestHttpReply::wantsClose_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char* name, const char* header, bool expected) {
        QTest::newRow(name) << QString::fromUtf8(header) << expected;
    };
    row("close", "X\r\nConnection: close", true);
    row("close between extra blanks", "X\r\nConnection: \t  close  ", true);
    row("close without a blank", "X\r\nConnection:close", true);
    row("Close with a capital letter", "X\r\nConnection: Close", false);
    row("keep-alive", "X\r\nConnection: keep-alive", false);
    row("the case of the name counts", "X\r\nconnection: close", false);
    row("among other words", "X\r\nConnection: close, TE", false);
    row("no such line", "X", false);
    row("one of two lines", "X\r\nConnection: close\r\nConnection: keep-alive", true);
}

void TestHttpReply::wantsClose()
{
    QFETCH(const QString, header);
    QTEST(HttpReply::wantsClose(header), "expected");
}

void TestHttpReply::jsonValues_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* body, int number, const char* text) {
        QTest::newRow(name) << QString::fromUtf8(body) << number << QString::fromUtf8(text);
    };
    row("a number", R"({"key": 3})", 3, "");
    row("a text", R"({"key": "abc"})", 0, "abc");
    row("beyond ASCII", R"({"key": "ä🎤"})", 0, "ä🎤");
    row("a missing key", R"({"other": 3})", 0, "");
    row("another case", R"({"Key": 3})", 0, "");
    row("a number in quotes is a text", R"({"key": "3"})", 0, "3");
    row("a fraction is no integer", R"({"key": 1.5})", 0, "");
    row("a truth value is neither", R"({"key": true})", 0, "");
    row("inside another object", R"({"a": {"key": 3}})", 0, "");
    row("an array", R"([{"key": 3}])", 0, "");
    row("no JSON", "key: 3", 0, "");
    row("cut off", R"({"key": 3)", 0, "");
    row("empty", "", 0, "");
}

void TestHttpReply::jsonValues()
{
    QFETCH(const QString, body);
    const QString reply = QStringLiteral("HTTP/1.1 200 OK\r\n\r\n") + body;
    QTEST(HttpReply::jsonInt(reply, QStringLiteral("key")), "number");
    QTEST(HttpReply::jsonText(reply, QStringLiteral("key")), "text");
}

TESSEL_TEST_MAIN(TestHttpReply)
#include "tst_httpreply.moc"
