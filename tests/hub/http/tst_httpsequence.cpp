#include "httprequest.h"
#include "identifysteps.h"
#include "testcase.h"

#include <QTest>

class TestHttpSequence : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepBuildsItsRequest();
    void onlyAHubWithAPasswordPassesTheStatus_data();
    void onlyAHubWithAPasswordPassesTheStatus();
    void theTokenIsStored();
    void aReplyWithoutTokenEmptiesIt();
    void theLogInReplacesTheTokenOnlyByAnother_data();
    void theLogInReplacesTheTokenOnlyByAnother();
    void everyStepFailsOnAStatusOf201();
};

namespace {

QString hubAddress()
{
    return QStringLiteral("10.0.0.7");
}

QString replyOf(const char* status, const char* body)
{
    return QStringLiteral("HTTP/1.1 %1 Text\r\n\r\n%2")
        .arg(QString::fromLatin1(status), QString::fromLatin1(body));
}

QString requestOf(IHttpSequence& step)
{
    QString request;
    step.buildRequest(request);
    return request;
}

} // namespace

void TestHttpSequence::everyStepBuildsItsRequest()
{
    QString token = QStringLiteral("T");
    GetStatus status(hubAddress(), nullptr);
    QCOMPARE(requestOf(status), HttpRequest::getStatus(hubAddress()));
    GetToken getToken(hubAddress(), &token, nullptr);
    QCOMPARE(requestOf(getToken), HttpRequest::getToken(hubAddress()));
    PostAuthenticate authenticate(hubAddress(), QStringLiteral("a"), &token, nullptr);
    QCOMPARE(requestOf(authenticate),
             HttpRequest::postAuthenticate(hubAddress(), token,
                                           QStringLiteral("0cc175b9c0f1b6a831c399e269772661")));
    GetIdentification identification(hubAddress(), &token, nullptr);
    QCOMPARE(requestOf(identification), HttpRequest::getIdentification(hubAddress(), token));
    PostInvalidate invalidate(hubAddress(), &token, nullptr);
    QCOMPARE(requestOf(invalidate), HttpRequest::postInvalidate(hubAddress(), token));
}

void TestHttpSequence::onlyAHubWithAPasswordPassesTheStatus_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<int>("expected");
    QTest::newRow("initialised") << replyOf("200", R"({"is-initialized": 1})") << 0;
    QTest::newRow("any number but 0") << replyOf("200", R"({"is-initialized": 2})") << 0;
    QTest::newRow("not initialised") << replyOf("200", R"({"is-initialized": 0})") << -1;
    QTest::newRow("a missing key reads as 0") << replyOf("200", "{}") << -1;
    QTest::newRow("no JSON") << replyOf("200", "yes") << -1;
    QTest::newRow("another status") << replyOf("500", R"({"is-initialized": 1})") << -1;
}

void TestHttpSequence::onlyAHubWithAPasswordPassesTheStatus()
{
    QFETCH(const QString, reply);
    GetStatus step(hubAddress(), nullptr);
    QTEST(step.evaluateReply(reply), "expected");
}

void TestHttpSequence::theTokenIsStored()
{
    QString token;
    GetToken step(hubAddress(), &token, nullptr);
    QCOMPARE(step.evaluateReply(replyOf("200", R"({"access-token": "T1"})")), 0);
    QCOMPARE(token, QStringLiteral("T1"));
}

void TestHttpSequence::aReplyWithoutTokenEmptiesIt()
{
    QString token = QStringLiteral("old");
    GetToken step(hubAddress(), &token, nullptr);
    QCOMPARE(step.evaluateReply(replyOf("200", "{}")), 0);
    QCOMPARE(token, QString());
}

void TestHttpSequence::theLogInReplacesTheTokenOnlyByAnother_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("token");
    QTest::newRow("a new token") << replyOf("200", R"({"access-token": "T2"})")
                                 << QStringLiteral("T2");
    QTest::newRow("no token") << replyOf("200", "{}") << QStringLiteral("T1");
    QTest::newRow("an empty token")
        << replyOf("200", R"({"access-token": ""})") << QStringLiteral("T1");
}

void TestHttpSequence::theLogInReplacesTheTokenOnlyByAnother()
{
    QFETCH(const QString, reply);
    QString token = QStringLiteral("T1");
    PostAuthenticate step(hubAddress(), QStringLiteral("a"), &token, nullptr);
    QCOMPARE(step.evaluateReply(reply), 0);
    QTEST(token, "token");
}

void TestHttpSequence::everyStepFailsOnAStatusOf201()
{
    const QString reply = replyOf("201", R"({"is-initialized": 1, "access-token": "T2"})");
    QString token = QStringLiteral("T1");
    GetStatus status(hubAddress(), nullptr);
    GetToken getToken(hubAddress(), &token, nullptr);
    PostAuthenticate authenticate(hubAddress(), QStringLiteral("a"), &token, nullptr);
    GetIdentification identification(hubAddress(), &token, nullptr);
    PostInvalidate invalidate(hubAddress(), &token, nullptr);
    for (IHttpSequence* step : std::initializer_list<IHttpSequence*>{
             &status, &getToken, &authenticate, &identification, &invalidate}) {
        QCOMPARE(step->evaluateReply(reply), -1);
    }
    QCOMPARE(token, QStringLiteral("T1"));
}

TESSEL_TEST_MAIN(TestHttpSequence)
#include "tst_httpsequence.moc"
