#include "httprequest.h"
#include "testcase.h"

#include <QTest>

class TestHttpRequest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRequestIsWrittenByteForByte_data();
    void everyRequestIsWrittenByteForByte();
    void theLengthCountsBytesNotCharacters();
    void percentSignsOfUsersArriveAsTyped();
    void aPasswordIsSentAsTheDigestOfItsUtf8Bytes_data();
    void aPasswordIsSentAsTheDigestOfItsUtf8Bytes();
    void theAuthenticationBodyForTheLetterACarriesItsDigestAndNotThePassword();
};

namespace {

QString address()
{
    return QStringLiteral("10.0.0.7");
}

} // namespace

void TestHttpRequest::everyRequestIsWrittenByteForByte_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("expected");

    QTest::newRow("status has no header lines")
        << HttpRequest::getStatus(address())
        << QStringLiteral("GET http://10.0.0.7/api/v0/auth/status HTTP/1.1\r\n\r\n");
    QTest::newRow("token") << HttpRequest::getToken(address())
                           << QStringLiteral("GET http://10.0.0.7/api/v0/auth/token HTTP/1.1\r\n"
                                             "Connection: keep-alive\r\n"
                                             "\r\n");
    QTest::newRow("authenticate")
        << HttpRequest::postAuthenticate(address(), QStringLiteral("T0"), QStringLiteral("d1"))
        << QStringLiteral("POST http://10.0.0.7/api/v0/auth/authenticate HTTP/1.1\r\n"
                          "Accept: application/json, text/plain\r\n"
                          "authorization: bearer T0\r\n"
                          "Content-Type: application/json;charset=utf-8\r\n"
                          "Content-Length: 38\r\n"
                          "Connection: keep-alive\r\n"
                          "\r\n"
                          "{\"user-id\": \"admin\", \"password\": \"d1\"}");
    QTest::newRow("identification")
        << HttpRequest::getIdentification(address(), QStringLiteral("T1"))
        << QStringLiteral("GET http://10.0.0.7/api/v0/identification/self HTTP/1.1\r\n"
                          "Accept: application/json, text/plain\r\n"
                          "authorization: bearer T1\r\n"
                          "Content-Type: text/plain;charset=utf-8\r\n"
                          "Connection: keep-alive\r\n"
                          "\r\n");
    QTest::newRow("invalidate")
        << HttpRequest::postInvalidate(address(), QStringLiteral("T1"))
        << QStringLiteral("POST http://10.0.0.7/api/v0/auth/token/invalidate HTTP/1.1\r\n"
                          "Accept: application/json, text/plain\r\n"
                          "authorization: bearer T1\r\n"
                          "Content-Type: application/json;charset=utf-8\r\n"
                          "Content-Length: 43\r\n"
                          "Connection: keep-alive\r\n"
                          "\r\n"
                          "{\"access-token\": \"T1\", \"status\": \"invalid\"}");
    QTest::newRow("an empty token leaves the blank before the line end")
        << HttpRequest::withBody(
               HttpRequest::requestLine(QStringLiteral("PUT"), address(), QStringLiteral("x")), {},
               BodyType::Xml, QStringLiteral("<a/>"))
        << QStringLiteral("PUT http://10.0.0.7/api/v0/x HTTP/1.1\r\n"
                          "Accept: application/json, text/plain\r\n"
                          "authorization: bearer \r\n"
                          "Content-Type: application/xml;charset=utf-8\r\n"
                          "Content-Length: 4\r\n"
                          "Connection: keep-alive\r\n"
                          "\r\n"
                          "<a/>");
}

void TestHttpRequest::everyRequestIsWrittenByteForByte()
{
    QFETCH(const QString, request);
    QTEST(request, "expected");
}

void TestHttpRequest::theLengthCountsBytesNotCharacters()
{
    const QString body = QStringLiteral("\u00C4 \U0001F3A4");
    const QString request =
        HttpRequest::withBody(QStringLiteral("L\r\n"), QStringLiteral("t"), BodyType::Json, body);
    QVERIFY(request.contains(QStringLiteral("Content-Length: 7\r\n")));
    QVERIFY(request.endsWith(QStringLiteral("\r\n\r\n") + body));
}

void TestHttpRequest::percentSignsOfUsersArriveAsTyped()
{
    const QString text = QStringLiteral("50%2 %1 %L3");
    const QString request =
        HttpRequest::withBody(QStringLiteral("%1\r\n"), text, BodyType::Json, text);
    QVERIFY(request.startsWith(QStringLiteral("%1\r\n")));
    QVERIFY(request.contains(QStringLiteral("bearer 50%2 %1 %L3\r\n")));
    QVERIFY(request.endsWith(QStringLiteral("\r\n\r\n50%2 %1 %L3")));
}

void TestHttpRequest::aPasswordIsSentAsTheDigestOfItsUtf8Bytes_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("digest");
    QTest::newRow("a") << QStringLiteral("a") << QStringLiteral("0cc175b9c0f1b6a831c399e269772661");
    QTest::newRow("empty") << QString() << QStringLiteral("d41d8cd98f00b204e9800998ecf8427e");
    QTest::newRow("umlaut") << QStringLiteral("\u00E4")
                            << QStringLiteral("8419b71c87a225a2c70b50486fbee545");
}

void TestHttpRequest::aPasswordIsSentAsTheDigestOfItsUtf8Bytes()
{
    QFETCH(const QString, password);
    QTEST(passwordDigest(password), "digest");
}

void TestHttpRequest::theAuthenticationBodyForTheLetterACarriesItsDigestAndNotThePassword()
{
    const QString request = HttpRequest::postAuthenticate(address(), QStringLiteral("T"),
                                                          passwordDigest(QStringLiteral("a")));
    QVERIFY(request.endsWith(
        QStringLiteral(R"({"user-id": "admin", "password": "0cc175b9c0f1b6a831c399e269772661"})")));
    QVERIFY(!request.contains(QStringLiteral(R"("password": "a")")));
}

TESSEL_TEST_MAIN(TestHttpRequest)
#include "tst_httprequest.moc"
