#include "httpidentify.h"
#include "httprequest.h"
#include "scriptedpeer.h"
#include "testcase.h"

#include <QTest>

class TestHttpIdentify : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRunAsksForFiveThingsInOrder();
    void aHubWithoutPasswordIsAskedNothingElse();
    void aWrongPasswordEndsTheRun();
    void theNextStartRunsAgain();
    void pressedAgainDuringARunItBeginsAnewWithItsFirstRequest();
};

namespace {

QString hub()
{
    return QStringLiteral("127.20.2.1");
}

/// A hub with the tokens T1 before and T2 after the log-in.
ScriptedAnswer hubAnswer(const QByteArray& request, qsizetype /*number*/)
{
    if (request.contains("auth/status")) {
        return okAnswer(R"({"is-initialized": 1})");
    }
    if (request.contains("auth/token HTTP")) {
        return okAnswer(R"({"access-token": "T1"})");
    }
    if (request.contains("auth/authenticate")) {
        return okAnswer(R"({"access-token": "T2"})");
    }
    return okAnswer("{}");
}

/// Notes how its runs end, which a user sees only on the hub.
class WatchedIdentify : public HttpIdentify
{
public:
    WatchedIdentify()
        : HttpIdentify(hub(), QStringLiteral("secret"), nullptr)
    {
    }

    QList<bool> outcomes;

protected:
    void completed(bool success) override { outcomes.append(success); }
};

QByteArrayList expectedRequests()
{
    const QString digest = passwordDigest(QStringLiteral("secret"));
    const QString first = QStringLiteral("T1");
    const QString second = QStringLiteral("T2");
    return {HttpRequest::getStatus(hub()).toUtf8(), HttpRequest::getToken(hub()).toUtf8(),
            HttpRequest::postAuthenticate(hub(), first, digest).toUtf8(),
            HttpRequest::getIdentification(hub(), second).toUtf8(),
            HttpRequest::postInvalidate(hub(), second).toUtf8()};
}

} // namespace

void TestHttpIdentify::aRunAsksForFiveThingsInOrder()
{
    ScriptedPeer peer(hub(), hubAnswer);
    QVERIFY(peer.isListening());
    WatchedIdentify identify;
    identify.start();
    QTRY_COMPARE(identify.outcomes, QList<bool>({true}));
    QCOMPARE(peer.requests(), expectedRequests());
    QVERIFY(!peer.requests().join().contains("secret"));
}

void TestHttpIdentify::aHubWithoutPasswordIsAskedNothingElse()
{
    ScriptedPeer peer(
        hub(), [](const QByteArray&, qsizetype) { return okAnswer(R"({"is-initialized": 0})"); });
    WatchedIdentify identify;
    for (int run = 1; run <= 2; ++run) {
        identify.start();
        QTRY_COMPARE(identify.outcomes, QList<bool>(run, false));
        QCOMPARE(peer.requests().size(), run);
        QCOMPARE(peer.requests().last(), HttpRequest::getStatus(hub()).toUtf8());
    }
}

void TestHttpIdentify::aWrongPasswordEndsTheRun()
{
    ScriptedPeer peer(hub(), [](const QByteArray& request, qsizetype number) {
        return request.contains("auth/authenticate") ? ScriptedAnswer{{httpReply("401", "{}")}}
                                                     : hubAnswer(request, number);
    });
    WatchedIdentify identify;
    identify.start();
    QTRY_COMPARE(identify.outcomes, QList<bool>({false}));
    QCOMPARE(peer.requests().size(), 3);
}

void TestHttpIdentify::theNextStartRunsAgain()
{
    ScriptedPeer peer(hub(), hubAnswer);
    WatchedIdentify identify;
    for (int run = 1; run <= 2; ++run) {
        identify.start();
        QTRY_COMPARE(identify.outcomes, QList<bool>(run, true));
    }
    QCOMPARE(peer.connectionCount(), 1);
    QCOMPARE(peer.requests(), expectedRequests() + expectedRequests());
}

void TestHttpIdentify::pressedAgainDuringARunItBeginsAnewWithItsFirstRequest()
{
    ScriptedPeer peer(hub(), [](const QByteArray& request, qsizetype number) {
        return number == 2 ? ScriptedAnswer{} : hubAnswer(request, number);
    });
    WatchedIdentify identify;
    identify.start();
    QTRY_COMPARE(peer.requests().size(), 3);
    identify.start();
    QTRY_COMPARE(identify.outcomes, QList<bool>({true}));
    QCOMPARE(peer.requests().sliced(3), expectedRequests());
    QCOMPARE(peer.connectionCount(), 2);
}

TESSEL_TEST_MAIN(TestHttpIdentify)
#include "tst_httpidentify.moc"
