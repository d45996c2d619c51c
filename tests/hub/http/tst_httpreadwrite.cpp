#include "httpconnection.h"
#include "httpreadwrite.h"
#include "identifysteps.h"
#include "scriptedpeer.h"
#include "testcase.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

class TestHttpReadWrite : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stepsFollowEachOtherOverOneConnection();
    void aSecondStartBeginsWithTheFirstStepOverTheSameConnection();
    void aReplyInOneBytePiecesIsEvaluatedOnce();
    void aReplyWithoutLengthIsNeverEvaluated();
    void aReplyAfterOneWithoutLengthCounts();
    void closeBetweenExtraBlanksReconnectsForTheNextStep();
    void closeWithACapitalLetterKeepsTheConnection();
    void aFailedStepEndsTheSequence();
    void tryAgainSendsTheSameRequestAfterAPause();
    void theTwentyFirstTryAgainEndsTheSequence();
    void anyOtherResultFails();
    void startDuringASequenceBeginsAnewOverAFreshConnection();
    void startDuringAPauseTakesTheWaitingRequestWithIt();
    void otherWorkGoesOnDuringAPause();
    void startWhileConnectingIsHarmless();
    void withoutStepsNothingIsSent();
};

namespace {

/// A step that sends a request with its name and returns the results it is given, one by one.
class NamedStep : public BaseHttpSequence
{
public:
    NamedStep(const QString& name, QList<int> results, QStringList* evaluated, QObject* parent)
        : BaseHttpSequence(QString(), parent)
        , m_name(name)
        , m_results(std::move(results))
        , m_evaluated(evaluated)
    {
    }

    void buildRequest(QString& request) override
    {
        request = QStringLiteral("GET %1\r\n\r\n").arg(m_name);
    }

    int evaluateReply(const QString& reply) override
    {
        m_evaluated->append(m_name + u'=' + reply.section(QStringLiteral("\r\n\r\n"), 1));
        return m_results.size() > 1 ? m_results.takeFirst() : m_results.first();
    }

private:
    QString m_name;
    QList<int> m_results;
    QStringList* m_evaluated;
};

class Engine : public HttpReadWrite
{
public:
    explicit Engine(const QString& hub)
        : HttpReadWrite(hub, QString(), nullptr)
    {
    }

    void add(const char* name, const QList<int>& results = {0})
    {
        appendStep(new NamedStep(QString::fromLatin1(name), results, &evaluated, this));
    }

    QStringList evaluated;
    QList<bool> outcomes;

protected:
    void completed(bool success) override { outcomes.append(success); }
};

QString hub()
{
    return QStringLiteral("127.20.1.1");
}

/// Answers every request with its name as the body.
ScriptedAnswer echo(const QByteArray& request, qsizetype /*number*/)
{
    return okAnswer(request.split('\r').first().mid(4));
}

const QList<bool> succeeded{true};
const QList<bool> failed{false};

} // namespace

void TestHttpReadWrite::stepsFollowEachOtherOverOneConnection()
{
    ScriptedPeer peer(hub(), echo);
    QVERIFY(peer.isListening());
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.add("c");
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.requests(), QByteArrayList({"GET a\r\n\r\n", "GET b\r\n\r\n", "GET c\r\n\r\n"}));
    QCOMPARE(engine.evaluated.join(u' '), QStringLiteral("a=a b=b c=c"));
    QCOMPARE(peer.connectionCount(), 1);
}

void TestHttpReadWrite::aSecondStartBeginsWithTheFirstStepOverTheSameConnection()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.start();
    QTRY_COMPARE(engine.outcomes.size(), 1);
    engine.start();
    QTRY_COMPARE(engine.outcomes.size(), 2);
    QCOMPARE(engine.evaluated.join(u' '), QStringLiteral("a=a b=b a=a b=b"));
    QCOMPARE(peer.connectionCount(), 1);
}

void TestHttpReadWrite::aReplyInOneBytePiecesIsEvaluatedOnce()
{
    ScriptedPeer peer(hub(), [](const QByteArray&, qsizetype) {
        return bytewise(httpReply("200", "{\"a\": 1}"));
    });
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(engine.evaluated.join(u' '), QStringLiteral("a={\"a\": 1} b={\"a\": 1}"));
}

void TestHttpReadWrite::aReplyWithoutLengthIsNeverEvaluated()
{
    ScriptedPeer peer(hub(), [](const QByteArray&, qsizetype number) {
        return number == 0 ? ScriptedAnswer{{"HTTP/1.1 200 OK\r\n\r\n{}"}, true}
                           : okAnswer("second");
    });
    Engine engine(hub());
    engine.add("a");
    engine.start();
    // Until the wizard has noticed that the hub hung up, a request would go nowhere.
    const QSignalSpy hungUp(engine.findChild<QTcpSocket*>(), SIGNAL(disconnected()));
    QTRY_COMPARE(hungUp.size(), 1);
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(engine.evaluated, QStringList(QStringLiteral("a=second")));
}

void TestHttpReadWrite::aReplyAfterOneWithoutLengthCounts()
{
    ScriptedPeer peer(hub(), [](const QByteArray&, qsizetype) {
        return ScriptedAnswer{{"HTTP/1.1 100 Continue\r\n\r\n", httpReply("200", "{}")}};
    });
    Engine engine(hub());
    engine.add("a");
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(engine.evaluated, QStringList(QStringLiteral("a={}")));
}

void TestHttpReadWrite::closeBetweenExtraBlanksReconnectsForTheNextStep()
{
    ScriptedPeer peer(hub(), [](const QByteArray&, qsizetype) {
        return okAnswer("{}", "Connection:  \t close  \r\n");
    });
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.add("c");
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.connectionCount(), 3);
    QCOMPARE(engine.evaluated.size(), 3);
}

void TestHttpReadWrite::closeWithACapitalLetterKeepsTheConnection()
{
    ScriptedPeer peer(hub(), [](const QByteArray&, qsizetype) {
        return okAnswer("{}", "Connection: Close\r\n");
    });
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.connectionCount(), 1);
}

void TestHttpReadWrite::aFailedStepEndsTheSequence()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a");
    engine.add("b", {IHttpSequence::Failed});
    engine.add("c");
    engine.start();
    QTRY_COMPARE(engine.outcomes, failed);
    QCOMPARE(peer.requests().size(), 2);
}

void TestHttpReadWrite::tryAgainSendsTheSameRequestAfterAPause()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a", {IHttpSequence::TryAgain, IHttpSequence::Succeeded});
    engine.add("b");
    QElapsedTimer clock;
    clock.start();
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QVERIFY(clock.elapsed() >= 500);
    QCOMPARE(engine.evaluated.join(u' '), QStringLiteral("a=a a=a b=b"));
}

void TestHttpReadWrite::theTwentyFirstTryAgainEndsTheSequence()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a", {IHttpSequence::TryAgain});
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(engine.outcomes, failed, 30000);
    QCOMPARE(peer.requests().size(), 21);
}

void TestHttpReadWrite::anyOtherResultFails()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a", {7});
    engine.start();
    QTRY_COMPARE(engine.outcomes, failed);
    QCOMPARE(peer.requests().size(), 1);
}

void TestHttpReadWrite::startDuringASequenceBeginsAnewOverAFreshConnection()
{
    ScriptedPeer peer(hub(), [](const QByteArray& request, qsizetype number) {
        return number == 1 ? ScriptedAnswer{} : echo(request, number);
    });
    Engine engine(hub());
    engine.add("a");
    engine.add("b");
    engine.start();
    QTRY_COMPARE(peer.requests().size(), 2);
    QVERIFY(engine.outcomes.isEmpty());
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.requests().sliced(2), QByteArrayList({"GET a\r\n\r\n", "GET b\r\n\r\n"}));
    QCOMPARE(peer.connectionCount(), 2);
}

void TestHttpReadWrite::startDuringAPauseTakesTheWaitingRequestWithIt()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a", {IHttpSequence::TryAgain, IHttpSequence::Succeeded});
    engine.start();
    QTRY_COMPARE(engine.evaluated.size(), 1);
    const auto timers = [&engine] {
        return QAbstractEventDispatcher::instance()
            ->registeredTimers(engine.findChild<HttpConnection*>())
            .size();
    };
    QCOMPARE(timers(), 1);
    engine.start();
    QCOMPARE(timers(), 0);
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.requests().size(), 2);
    QCOMPARE(peer.connectionCount(), 2);
}

void TestHttpReadWrite::otherWorkGoesOnDuringAPause()
{
    ScriptedPeer peer(hub(), echo);
    Engine waiting(hub());
    waiting.add("a", {IHttpSequence::TryAgain, IHttpSequence::Succeeded});
    Engine other(hub());
    other.add("b");
    waiting.start();
    QTRY_COMPARE(waiting.evaluated.size(), 1);
    other.start();
    QTRY_COMPARE(other.outcomes, succeeded);
    QVERIFY(waiting.outcomes.isEmpty());
    QTRY_COMPARE(waiting.outcomes, succeeded);
}

void TestHttpReadWrite::startWhileConnectingIsHarmless()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.add("a");
    engine.start();
    engine.start();
    QTRY_COMPARE(engine.outcomes, succeeded);
    QCOMPARE(peer.requests().size(), 1);
}

void TestHttpReadWrite::withoutStepsNothingIsSent()
{
    ScriptedPeer peer(hub(), echo);
    Engine engine(hub());
    engine.start();
    QTRY_COMPARE(peer.connectionCount(), 1);
    peer.sendUnasked(httpReply("200", "{}", "Connection: close\r\n"));
    peer.closeConnection();
    QTRY_VERIFY((engine.start(), peer.connectionCount() == 2));
    QVERIFY(peer.requests().isEmpty());
    QVERIFY(engine.outcomes.isEmpty());
}

TESSEL_TEST_MAIN(TestHttpReadWrite)
#include "tst_httpreadwrite.moc"
