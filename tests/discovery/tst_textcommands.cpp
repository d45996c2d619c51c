#include "identifysender.h"
#include "presetcommandsenders.h"
#include "testcase.h"
#include "textpeer.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

class TestTextCommands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void identifyOnAFreshSenderConnectsFirstAndThenSends();
    void identifyOnAConnectedSenderSendsAgainWithoutReconnecting();
    void identifyTwiceWhileConnectingSendsTheLatestNumberOnce();
    void identifyAfterTheDeviceClosedConnectsAnew();
    void identifyReachesADeviceThatRefusedBefore();
    void identifyDropsWhatTheDeviceAnswers();
    void destroyingASenderClosesItsConnection();
    void recallNumber_data();
    void recallNumber();
    void currentPresetNumber_data();
    void currentPresetNumber();
    void refusedConnectionIsToldAndASilentOneIsNot();
    void startingTwiceSendsOnce();
    void everyPeerMisbehaviourLeavesTheSendersSilent();
};

namespace {

QTcpSocket* socketOf(const SCPCommandSender& sender)
{
    return sender.findChild<QTcpSocket*>();
}

bool isClosed(const SCPCommandSender& sender)
{
    return socketOf(sender)->state() == QAbstractSocket::UnconnectedState;
}

} // namespace

void TestTextCommands::identifyOnAFreshSenderConnectsFirstAndThenSends()
{
    TextPeer peer(QStringLiteral("127.30.2.1"));
    QVERIFY(peer.listen());
    IdentifySender sender(peer.hostAddress(), nullptr);
    QVERIFY(socketOf(sender) == nullptr);
    sender.identify(5);
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\n"));
}

void TestTextCommands::identifyOnAConnectedSenderSendsAgainWithoutReconnecting()
{
    TextPeer peer(QStringLiteral("127.30.2.2"));
    QVERIFY(peer.listen());
    IdentifySender sender(peer.hostAddress(), nullptr);
    sender.identify(5);
    QTRY_COMPARE(peer.lines(), 1);
    sender.identify(7);
    QTRY_COMPARE(peer.lines(), 2);
    QCOMPARE(peer.received(), QByteArray("identify 5\nidentify 7\n"));
    QCOMPARE(peer.connections(), 1);
}

void TestTextCommands::identifyTwiceWhileConnectingSendsTheLatestNumberOnce()
{
    TextPeer peer(QStringLiteral("127.30.2.3"));
    QVERIFY(peer.listen());
    IdentifySender sender(peer.hostAddress(), nullptr);
    sender.identify(1);
    sender.identify(2);
    QTRY_COMPARE(peer.lines(), 1);
    // A line of its own behind them shows that nothing else was under way.
    sender.identify(3);
    QTRY_COMPARE(peer.lines(), 2);
    QCOMPARE(peer.received(), QByteArray("identify 2\nidentify 3\n"));
    QCOMPARE(peer.connections(), 1);
}

void TestTextCommands::identifyAfterTheDeviceClosedConnectsAnew()
{
    TextPeer peer(QStringLiteral("127.30.2.4"));
    QVERIFY(peer.listen());
    IdentifySender sender(peer.hostAddress(), nullptr);
    sender.identify(5);
    QTRY_COMPARE(peer.lines(), 1);
    peer.hangUp();
    QTRY_VERIFY(isClosed(sender));
    sender.identify(5);
    QTRY_COMPARE(peer.lines(), 2);
    QCOMPARE(peer.received(), QByteArray("identify 5\nidentify 5\n"));
    QCOMPARE(peer.connections(), 2);
}

void TestTextCommands::identifyReachesADeviceThatRefusedBefore()
{
    TextPeer peer(QStringLiteral("127.30.2.5"));
    IdentifySender sender(peer.hostAddress(), nullptr);
    sender.identify(5);
    QTRY_VERIFY(isClosed(sender));
    QVERIFY(peer.listen());
    sender.identify(5);
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\n"));
}

void TestTextCommands::identifyDropsWhatTheDeviceAnswers()
{
    TextPeer peer(QStringLiteral("127.30.2.6"));
    QVERIFY(peer.listen());
    IdentifySender sender(peer.hostAddress(), nullptr);
    sender.identify(5);
    QTRY_COMPARE(peer.lines(), 1);
    QSignalSpy arrived(socketOf(sender), SIGNAL(readyRead()));
    peer.send("OK identify 5\n");
    QTRY_COMPARE(arrived.size(), 1);
    QCOMPARE(socketOf(sender)->bytesAvailable(), 0);
}

void TestTextCommands::destroyingASenderClosesItsConnection()
{
    TextPeer peer(QStringLiteral("127.30.2.7"));
    QVERIFY(peer.listen());
    auto sender = std::make_unique<IdentifySender>(peer.hostAddress(), nullptr);
    sender->identify(5);
    QTRY_COMPARE(peer.lines(), 1);
    sender.reset();
    QTRY_VERIFY(!peer.isOnline());
}

void TestTextCommands::recallNumber_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QList<int>>("numbers");
    const auto row = [](const char* answer, const QList<int>& numbers) {
        QTest::newRow(answer) << QByteArray(answer) << numbers;
    };
    row("NOTIFY ssrecall_ex config 4", {4});
    row("NOTIFY ssrecall_ex config 4\r\n", {4});
    row("NOTIFY ssrecall_ex config 0 4", {0});
    row("NOTIFY ssrecall_ex config", {0});
    row("NOTIFY ssrecall_ex config four\n", {0});
    row("OK ssrecall_ex config 4", {});
    row("OK ssrecall_ex config 4\nNOTIFY ssrecall_ex config 4\n", {});
    row("NOTIFY sscurrent_ex config 4", {});
    row("ERROR ssrecall_ex config 4", {});
    row("\xff\xfe garbage", {});
}

void TestTextCommands::recallNumber()
{
    QFETCH(const QByteArray, answer);
    TextPeer peer(QStringLiteral("127.30.2.8"));
    QVERIFY(peer.listen());
    PresetRecallSender sender(peer.hostAddress(), 4, nullptr);
    const QSignalSpy recalls(&sender, SIGNAL(notifyPresetRecall(int)));
    sender.start();
    QTRY_COMPARE(peer.received(), QByteArray("ssrecall_ex config 4\n"));

    QSignalSpy arrived(socketOf(sender), SIGNAL(readyRead()));
    peer.send(answer);
    QTRY_COMPARE(arrived.size(), 1);
    QList<int> numbers;
    for (const QVariantList& arguments : recalls) {
        numbers += arguments.first().toInt();
    }
    QTEST(numbers, "numbers");
}

void TestTextCommands::currentPresetNumber_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QList<int>>("numbers");
    const auto row = [](const char* answer, const QList<int>& numbers) {
        QTest::newRow(answer) << QByteArray(answer) << numbers;
    };
    row("OK sscurrent_ex config 2", {2});
    row("OK sscurrent_ex config 2\n", {2});
    row("NOTIFY sscurrent_ex config 3\r\n", {3});
    row("OK sscurrent_ex config", {0});
    row("OK", {0});
    row("NOTIFY ssrecall_ex config 3", {});
    row("ERROR sscurrent_ex config 2", {});
    row(" OK sscurrent_ex config 2", {});
}

void TestTextCommands::currentPresetNumber()
{
    QFETCH(const QByteArray, answer);
    TextPeer peer(QStringLiteral("127.30.2.9"));
    QVERIFY(peer.listen());
    CurrentPresetSender sender(peer.hostAddress(), nullptr);
    const QSignalSpy presets(&sender, SIGNAL(notifyCurrentPreset(QString, int)));
    sender.start();
    QTRY_COMPARE(peer.received(), QByteArray("sscurrent_ex config\n"));

    QSignalSpy arrived(socketOf(sender), SIGNAL(readyRead()));
    peer.send(answer);
    QTRY_COMPARE(arrived.size(), 1);
    QList<int> numbers;
    for (const QVariantList& arguments : presets) {
        QCOMPARE(arguments.first().toString(), peer.address());
        numbers += arguments.last().toInt();
    }
    QTEST(numbers, "numbers");
}

void TestTextCommands::refusedConnectionIsToldAndASilentOneIsNot()
{
    CurrentPresetSender refused(QHostAddress(QStringLiteral("127.30.2.99")), nullptr);
    const QSignalSpy refusals(&refused, SIGNAL(connectionRefused()));
    refused.start();
    QTRY_COMPARE(refusals.size(), 1);

    TextPeer peer(QStringLiteral("127.30.2.98"));
    QVERIFY(peer.listen());
    CurrentPresetSender other(peer.hostAddress(), nullptr);
    const QSignalSpy otherRefusals(&other, SIGNAL(connectionRefused()));
    other.start();
    QTRY_COMPARE(peer.lines(), 1);
    peer.hangUp();
    QTRY_VERIFY(isClosed(other));
    QCOMPARE(otherRefusals.size(), 0);
}

void TestTextCommands::startingTwiceSendsOnce()
{
    TextPeer peer(QStringLiteral("127.30.2.10"));
    QVERIFY(peer.listen());
    CurrentPresetSender sender(peer.hostAddress(), nullptr);
    const QSignalSpy presets(&sender, SIGNAL(notifyCurrentPreset(QString, int)));
    sender.start();
    sender.start();
    QTRY_COMPARE(peer.lines(), 1);
    sender.start();
    peer.send("OK sscurrent_ex config 2\n");
    QTRY_COMPARE(presets.size(), 1);
    QCOMPARE(peer.lines(), 1);
    QCOMPARE(peer.connections(), 1);
}

void TestTextCommands::everyPeerMisbehaviourLeavesTheSendersSilent()
{
    TextPeer peer(QStringLiteral("127.30.2.11"));
    CurrentPresetSender sender(peer.hostAddress(), nullptr);
    const QSignalSpy presets(&sender, SIGNAL(notifyCurrentPreset(QString, int)));
    sender.start();
    QTRY_VERIFY2(isClosed(sender), "a refused connection ends by itself");

    QVERIFY(peer.listen());
    sender.start();
    QTRY_COMPARE(peer.lines(), 1);
    peer.switchOff();
    QTRY_VERIFY2(isClosed(sender), "a reset connection ends by itself");

    QVERIFY(peer.listen());
    sender.start();
    QTRY_COMPARE(peer.lines(), 2);
    peer.hangUp();
    QTRY_VERIFY2(isClosed(sender), "a closed connection ends by itself");
    QCOMPARE(presets.size(), 0);
}

TESSEL_TEST_MAIN(TestTextCommands)
#include "tst_textcommands.moc"
