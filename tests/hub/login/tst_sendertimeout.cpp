#include "printedlines.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QTest>

/// When a sender gives up. The seconds of its clock are sent to it, so that no test waits for them.
class TestSenderTimeOut : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSilentHubEndsTheRunAfterThirtySeconds();
    void everyArrivalRestartsTheTimeOut();
    void aHubThatRefusesTheConnectionTimesOut();
    void aHubBehindNoRouteTimesOut();
    void aHubThatClosesInMidReplyTimesOut();
    void theClockStandsStillBetweenLogInAndTransfer();
    void aReplyWithoutLengthTimesOut();
};

namespace {

QString hub()
{
    return QStringLiteral("127.21.4.1");
}

} // namespace

void TestSenderTimeOut::aSilentHubEndsTheRunAfterThirtySeconds()
{
    SenderFixture f(hub());
    f.script.instead = {{InstallStep::Status, {}}};
    f.sender->start();
    passSeconds(f.sender, 30);
    QCOMPARE(f.outcomes(), QString());
    QVERIFY(f.sender->isRunning());
    passSeconds(f.sender, 1);
    QCOMPARE(f.outcomes(), QStringLiteral("0"));
    QVERIFY(!f.sender->isRunning());
    QVERIFY(!isClockRunning(f.sender));
}

void TestSenderTimeOut::everyArrivalRestartsTheTimeOut()
{
    SenderFixture f(hub());
    f.script.instead = {{InstallStep::StartExport, {{"HTTP/1.1 200 OK\r\n"}}}};
    QVERIFY(f.logIn());
    const PrintedLines printed;
    f.sender->sendPresets();
    passSeconds(f.sender, 28);
    // The first piece of the reply reloads the seconds, although it is not complete.
    QTRY_VERIFY(printed.lines().contains(QStringLiteral("127.21.4.1 Reply Step:4")));
    passSeconds(f.sender, 28);
    QVERIFY(f.sender->isRunning());
    passSeconds(f.sender, 3);
    QCOMPARE(f.outcomes(), QStringLiteral("0"));
}

void TestSenderTimeOut::aHubThatRefusesTheConnectionTimesOut()
{
    SenderFixture f(hub());
    PresetFileSender sender(QStringLiteral("127.21.4.99"), QStringLiteral("Hub B"), &f.doc,
                            f.page.get());
    const QSignalSpy finished(&sender, SIGNAL(finished(QString, int)));
    sender.start();
    passSeconds(&sender, 31);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().at(1).toInt(), 0);
}

void TestSenderTimeOut::aHubBehindNoRouteTimesOut()
{
    SenderFixture f(hub());
    for (const char* address : {"240.0.0.1", "255.255.255.255"}) {
        PresetFileSender sender(QString::fromLatin1(address), QStringLiteral("Hub B"), &f.doc,
                                f.page.get());
        const QSignalSpy finished(&sender, SIGNAL(finished(QString, int)));
        sender.start();
        passSeconds(&sender, 31);
        QCOMPARE(finished.count(), 1);
        sender.start();
        QVERIFY(sender.isRunning());
    }
}

void TestSenderTimeOut::aHubThatClosesInMidReplyTimesOut()
{
    SenderFixture f(hub());
    f.script.first = {
        {InstallStep::PresetEntry, {{{"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{"}, true}}}};
    QVERIFY(f.logIn());
    f.sender->sendPresets();
    QTRY_COMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6"));
    passSeconds(f.sender, 31);
    QCOMPARE(f.outcomes(), QStringLiteral("0"));
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 1"));
}

void TestSenderTimeOut::theClockStandsStillBetweenLogInAndTransfer()
{
    SenderFixture f(hub());
    QVERIFY(f.logIn());
    QVERIFY(!isClockRunning(f.sender));
    f.sender->sendPresets();
    QVERIFY(isClockRunning(f.sender));
    QVERIFY(f.waitForOutcome());
    QVERIFY(!isClockRunning(f.sender));
}

void TestSenderTimeOut::aReplyWithoutLengthTimesOut()
{
    for (const char* reply : {"HTTP/1.1 200 OK\r\n\r\n{\"is-initialized\": 1}",
                              "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"}) {
        SenderFixture f(hub());
        f.script.instead = {{InstallStep::Status, {{reply}}}};
        const PrintedLines printed;
        f.sender->start();
        QTRY_VERIFY(printed.lines().contains(QStringLiteral("127.21.4.1 Reply Step:0")));
        passSeconds(f.sender, 31);
        QCOMPARE(f.outcomes(), QStringLiteral("0"));
        QCOMPARE(f.steps(), QStringLiteral("0"));
    }
}

TESSEL_TEST_MAIN(TestSenderTimeOut)
#include "tst_sendertimeout.moc"
