#include "hubrequestparser.h"
#include "hubtexts.h"
#include "redaction.h"
#include "requestcheck.h"
#include "testcase.h"

#include <QTest>

namespace {

const QByteArray host = "127.0.1.1";
const QByteArray token = "0123456789abcdef0123456789abcdef01234567";

QStringList differencesOf(const QByteArray& bytes)
{
    HubRequest request = readRequest(bytes).request;
    routeRequest(request, QStringLiteral("hub01"));
    return requestDifferences(request, QStringLiteral("127.0.1.1"));
}

} // namespace

/// The byte-for-byte comparison of requests with what a hub prescribes.
class TestRequestCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rightRequestsHaveNoDifferences_data();
    void rightRequestsHaveNoDifferences();
    void everyChangedByteIsADifference_data();
    void everyChangedByteIsADifference();
    void differencesAreReadable_data();
    void differencesAreReadable();
    void secretsAreHidden_data();
    void secretsAreHidden();
};

void TestRequestCheck::rightRequestsHaveNoDifferences_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("status") << HubTexts::status(host);
    QTest::newRow("token") << HubTexts::token(host);
    QTest::newRow("first password") << HubTexts::setPassword(host, token);
    QTest::newRow("log-in") << HubTexts::logIn(host, token);
    QTest::newRow("export") << HubTexts::startExport(host, token);
    QTest::newRow("poll") << HubTexts::readExport(host, token);
    QTest::newRow("entry") << HubTexts::presetEntry(host, token, 10, "50%2 \\\"x\\\" \\\\ y");
    QTest::newRow("entry without a name") << HubTexts::presetEntry(host, token, 1, "");
    QTest::newRow("hub file") << HubTexts::file(host, token, 1, "hub01", HubTexts::hubXml());
    QTest::newRow("device file") << HubTexts::file(host, token, 1, "021A00100001",
                                                   HubTexts::deviceXml());
    QTest::newRow("recall") << HubTexts::recall(host, token, 1);
    QTest::newRow("invalidation") << HubTexts::invalidate(host, token);
    QTest::newRow("identification") << HubTexts::identification(host, token);
}

void TestRequestCheck::rightRequestsHaveNoDifferences()
{
    QFETCH(const QByteArray, request);
    QCOMPARE(differencesOf(request), QStringList());
}

void TestRequestCheck::everyChangedByteIsADifference_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("status") << HubTexts::status(host);
    QTest::newRow("token") << HubTexts::token(host);
    QTest::newRow("export") << HubTexts::startExport(host, "");
    QTest::newRow("poll") << HubTexts::readExport(host, "");
    QTest::newRow("identification") << HubTexts::identification(host, "");
}

void TestRequestCheck::everyChangedByteIsADifference()
{
    QFETCH(const QByteArray, request);
    for (qsizetype at = 0; at < request.size(); ++at) {
        QByteArray changed = request;
        changed[at] = changed.at(at) == '#' ? '+' : '#';
        const RequestReading reading = readRequest(changed);
        if (reading.verdict == RequestReading::Verdict::Complete &&
            reading.consumed == changed.size()) {
            QVERIFY2(!differencesOf(changed).isEmpty(), changed.constData());
        }
    }
}

void TestRequestCheck::differencesAreReadable_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QString>("difference");

    const auto row = [](const char* name, QByteArray request, const char* before, const char* after,
                        const char* difference) {
        QTest::newRow(name) << request.replace(before, after) << QString::fromUtf8(difference);
    };
    const QByteArray recall = HubTexts::recall(host, token, 1);
    row("another host", HubTexts::status(host), "127.0.1.1", "127.0.1.2",
        "header line 1: expected \"GET http://127.0.1.1/api/v0/auth/status HTTP/1.1\", got \"GET "
        "http://127.0.1.2/api/v0/auth/status HTTP/1.1\"");
    row("no host", HubTexts::status(host), "http://127.0.1.1", "",
        "header line 1: expected \"GET http://127.0.1.1/api/v0/auth/status HTTP/1.1\", got \"GET "
        "/api/v0/auth/status HTTP/1.1\"");
    row("a missing slash", HubTexts::readExport(host, token), "self/ ", "self ",
        "header line 1: expected \"GET http://127.0.1.1/api/v0/config/export/self/ HTTP/1.1\", "
        "got \"GET http://127.0.1.1/api/v0/config/export/self HTTP/1.1\"");
    row("a header too many", HubTexts::status(host), "\r\n\r\n", "\r\nHost: x\r\n\r\n",
        "header line 2: expected nothing, got \"Host: x\"");
    row("a missing header", HubTexts::token(host), "\r\nConnection: keep-alive", "",
        "header line 2: expected \"Connection: keep-alive\", got nothing");
    row("the wrong case", recall, "authorization", "Authorization",
        "header line 3: expected \"authorization: bearer <token>\", got \"Authorization: bearer "
        "<secret>\"");
    row("another type", recall, "application/json;", "text/json;",
        "header line 4: expected \"Content-Type: application/json;charset=utf-8\", got "
        "\"Content-Type: text/json;charset=utf-8\"");
    row("a padded length", recall, "Content-Length: 20", "Content-Length: 020",
        "header line 5: expected \"Content-Length: 20\", got \"Content-Length: 020\"");
    row("no space in the body", recall,
        "20\r\nConnection: keep-alive\r\n\r\n{\"preset-number\": 1}",
        "19\r\nConnection: keep-alive\r\n\r\n{\"preset-number\":1}",
        "body: expected {\"preset-number\": <number>}, got {\"preset-number\":1}");
    row("an upper-case hash", HubTexts::logIn(host, token), "5ebe", "5EBE",
        "body: expected {\"user-id\": \"admin\", \"password\": \"<hash>\"}, got {\"user-id\": "
        "\"admin\", \"password\": \"<secret>\"}");
    row("a body where none belongs", HubTexts::token(host), "keep-alive\r\n\r\n",
        "keep-alive\r\nContent-Length: 2\r\n\r\n{}",
        "header line 3: expected nothing, got \"Content-Length: 2\"\nbody: expected nothing, got 2 "
        "bytes");
    row("an unknown request", HubTexts::status(host), "auth/status", "auth/x",
        "unknown request \"GET http://127.0.1.1/api/v0/auth/x HTTP/1.1\"");
    row("another escape", HubTexts::presetEntry(host, token, 1, "\\\\a"), "\\\\a", "\\ta",
        "body: expected {\"description\": \"<name>\", \"preset-number\": <number>, "
        "\"source-type\": 2, \"external-source\": \"\"}, got {\"description\": \"\\ta\", "
        "\"preset-number\": 1, \"source-type\": 2, \"external-source\": \"\"}");
}

void TestRequestCheck::differencesAreReadable()
{
    QFETCH(const QByteArray, request);
    QTEST(differencesOf(request).join(u'\n'), "difference");
}

void TestRequestCheck::secretsAreHidden_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("a hash") << QByteArray("x 5ebe2294ecd0e0f08eab7690d2a6ee69 y")
                            << QStringLiteral("x <secret> y");
    QTest::newRow("a token") << QByteArray("Authorization: Bearer short")
                             << QStringLiteral("Authorization: Bearer <secret>");
    QTest::newRow("a plain password")
        << QByteArray(R"({"admin":"hello"})") << QStringLiteral(R"({"admin":"<secret>"})");
    QTest::newRow("a password beside the user")
        << QByteArray(R"({"user-id": "admin", "password": "hello"})")
        << QStringLiteral(R"({"user-id": "admin", "password": "<secret>"})");
    QTest::newRow("a MAC address is none")
        << QByteArray("021A00100001") << QStringLiteral("021A00100001");
    QTest::newRow("line ends are shown") << QByteArray("a\r\nb") << QStringLiteral("a\\r\\nb");
}

void TestRequestCheck::secretsAreHidden()
{
    QFETCH(const QByteArray, bytes);
    QTEST(redacted(bytes), "text");
}

TESSEL_TEST_MAIN(TestRequestCheck)
#include "tst_requestcheck.moc"
