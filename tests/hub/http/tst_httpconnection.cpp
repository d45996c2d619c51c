#include "httpconnection.h"
#include "scriptedpeer.h"
#include "testcase.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

class TestHttpConnection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aQuestionWaitsForTheConnectionAndIsAnsweredOnce();
    void askedTwiceWhileConnectingOnlyTheLastQuestionIsPut();
    void questionsShareOneConnection();
    void whatComesUnaskedIsNoAnswer();
    void aPauseIsAtLeastAsLongAsItShouldBe();
    void whatComesDuringAPauseIsNoAnswer();
    void aQuestionAtOnceReplacesOneInItsPause();
    void dropTakesAQuestionInItsPauseWithIt();
    void dropForgetsTheQuestionThatIsOpen();
    void dropForgetsTheQuestionThatWaitsForTheConnection();
    void aHubThatHangsUpDuringAPauseIsConnectedAgain();
    void afterAReplyThatSaysCloseTheNextQuestionHasAConnectionOfItsOwn();
    void troubleIsRefusalWhereNobodyListens();
    void troubleIsNoWayWhereNoneLeads();
    void troubleIsABreakWhereTheHubHangsUp();
    void aNewQuestionBeginsWithoutTrouble();
};

namespace {

using namespace std::chrono_literals;

QString hub()
{
    return QStringLiteral("127.20.3.1");
}

QString question(const char* name)
{
    return QStringLiteral("GET %1\r\n\r\n").arg(QString::fromLatin1(name));
}

/// Answers every request with its name as the body.
ScriptedAnswer echo(const QByteArray& request, qsizetype /*number*/)
{
    return okAnswer(request.split('\r').first().mid(4));
}

QString bodyOf(const QSignalSpy& replied, int number)
{
    return replied.at(number).first().toString().section(QStringLiteral("\r\n\r\n"), 1);
}

bool isPausing(HttpConnection* connection)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(connection).isEmpty();
}

/// A connection to a peer, and what it emits.
struct Fixture
{
    explicit Fixture(const ScriptedPeer::Script& script = echo)
        : peer(hub(), script)
    {
    }

    ScriptedPeer peer;
    HttpConnection connection{hub(), nullptr};
    QSignalSpy replied{&connection, SIGNAL(replied(QString))};
    QSignalSpy arrived{&connection, SIGNAL(arrived())};
};

} // namespace

void TestHttpConnection::aQuestionWaitsForTheConnectionAndIsAnsweredOnce()
{
    Fixture f;
    QVERIFY(f.peer.isListening());
    f.connection.ask(question("a"));
    QVERIFY(f.peer.requests().isEmpty());
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(bodyOf(f.replied, 0), QStringLiteral("a"));
    QCOMPARE(f.peer.requests(), QByteArrayList({"GET a\r\n\r\n"}));
}

void TestHttpConnection::askedTwiceWhileConnectingOnlyTheLastQuestionIsPut()
{
    Fixture f;
    f.connection.ask(question("a"));
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(f.peer.requests(), QByteArrayList({"GET b\r\n\r\n"}));
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestHttpConnection::questionsShareOneConnection()
{
    Fixture f;
    for (int number = 1; number <= 3; ++number) {
        f.connection.ask(question("a"));
        QTRY_COMPARE(f.replied.size(), number);
    }
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestHttpConnection::whatComesUnaskedIsNoAnswer()
{
    Fixture f;
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.replied.size(), 1);
    f.peer.sendUnasked(httpReply("200", "unasked"));
    QTRY_COMPARE(f.arrived.size(), 2);
    QCOMPARE(f.replied.size(), 1);
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 2);
    QCOMPARE(bodyOf(f.replied, 1), QStringLiteral("b"));
}

void TestHttpConnection::aPauseIsAtLeastAsLongAsItShouldBe()
{
    Fixture f;
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.replied.size(), 1);
    QElapsedTimer clock;
    clock.start();
    f.connection.askAfter(200ms, question("b"));
    QTRY_COMPARE(f.replied.size(), 2);
    QVERIFY(clock.elapsed() >= 200);
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestHttpConnection::whatComesDuringAPauseIsNoAnswer()
{
    Fixture f;
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.replied.size(), 1);
    f.connection.askAfter(1s, question("b"));
    f.peer.sendUnasked(httpReply("200", "too early"));
    QVERIFY(f.arrived.wait());
    QVERIFY(isPausing(&f.connection));
    QTRY_COMPARE(f.replied.size(), 2);
    QCOMPARE(bodyOf(f.replied, 1), QStringLiteral("b"));
}

void TestHttpConnection::aQuestionAtOnceReplacesOneInItsPause()
{
    Fixture f;
    f.connection.askAfter(200ms, question("a"));
    f.connection.ask(question("b"));
    QVERIFY(!isPausing(&f.connection));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(f.peer.requests(), QByteArrayList({"GET b\r\n\r\n"}));
}

void TestHttpConnection::dropTakesAQuestionInItsPauseWithIt()
{
    Fixture f;
    f.connection.open();
    QTRY_COMPARE(f.peer.connectionCount(), 1);
    f.connection.askAfter(1ms, question("a"));
    f.connection.drop();
    QVERIFY(!isPausing(&f.connection));
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(f.peer.requests(), QByteArrayList({"GET b\r\n\r\n"}));
    QCOMPARE(f.peer.connectionCount(), 2);
}

void TestHttpConnection::dropForgetsTheQuestionThatIsOpen()
{
    Fixture f([](const QByteArray& request, qsizetype number) {
        return number == 0 ? ScriptedAnswer{} : echo(request, number);
    });
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.peer.requests().size(), 1);
    f.connection.drop();
    f.connection.open();
    QTRY_COMPARE(f.peer.connectionCount(), 2);
    f.peer.sendUnasked(httpReply("200", "late"));
    QVERIFY(f.arrived.wait());
    QVERIFY(f.replied.isEmpty());
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(bodyOf(f.replied, 0), QStringLiteral("b"));
}

void TestHttpConnection::dropForgetsTheQuestionThatWaitsForTheConnection()
{
    Fixture f;
    f.connection.ask(question("a"));
    f.connection.drop();
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(f.peer.requests(), QByteArrayList({"GET b\r\n\r\n"}));
}

void TestHttpConnection::aHubThatHangsUpDuringAPauseIsConnectedAgain()
{
    Fixture f;
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.replied.size(), 1);
    QSignalSpy gone(f.connection.findChild<QTcpSocket*>(), SIGNAL(disconnected()));
    f.connection.askAfter(1s, question("b"));
    f.peer.closeConnection();
    QVERIFY(gone.wait());
    QCOMPARE(f.connection.trouble(), HttpConnection::Trouble::Broken);
    QTRY_COMPARE(f.replied.size(), 2);
    QCOMPARE(f.connection.trouble(), HttpConnection::Trouble::None);
    QCOMPARE(f.peer.connectionCount(), 2);
}

void TestHttpConnection::afterAReplyThatSaysCloseTheNextQuestionHasAConnectionOfItsOwn()
{
    Fixture f(
        [](const QByteArray&, qsizetype) { return okAnswer("{}", "Connection:  close \r\n"); });
    for (int number = 1; number <= 2; ++number) {
        f.connection.ask(question("a"));
        QTRY_COMPARE(f.replied.size(), number);
        QCOMPARE(f.peer.connectionCount(), number);
    }
}

void TestHttpConnection::troubleIsRefusalWhereNobodyListens()
{
    HttpConnection connection(QStringLiteral("127.20.3.99"), nullptr);
    connection.ask(question("a"));
    QTRY_COMPARE(connection.trouble(), HttpConnection::Trouble::Refused);
}

void TestHttpConnection::troubleIsNoWayWhereNoneLeads()
{
    HttpConnection connection(QStringLiteral("255.255.255.255"), nullptr);
    connection.ask(question("a"));
    QTRY_COMPARE(connection.trouble(), HttpConnection::Trouble::Unreachable);
}

void TestHttpConnection::troubleIsABreakWhereTheHubHangsUp()
{
    Fixture f([](const QByteArray&, qsizetype) { return ScriptedAnswer{{"HTTP/1.1 200"}, true}; });
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.connection.trouble(), HttpConnection::Trouble::Broken);
    QVERIFY(f.replied.isEmpty());
}

void TestHttpConnection::aNewQuestionBeginsWithoutTrouble()
{
    Fixture f([](const QByteArray& request, qsizetype number) {
        return number == 0 ? ScriptedAnswer{{}, true} : echo(request, number);
    });
    f.connection.ask(question("a"));
    QTRY_COMPARE(f.connection.trouble(), HttpConnection::Trouble::Broken);
    f.connection.ask(question("b"));
    QTRY_COMPARE(f.replied.size(), 1);
    QCOMPARE(f.connection.trouble(), HttpConnection::Trouble::None);
}

TESSEL_TEST_MAIN(TestHttpConnection)
#include "tst_httpconnection.moc"
