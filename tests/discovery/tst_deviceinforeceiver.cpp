#include "deviceinforeceiver.h"
#include "testcase.h"
#include "textpeer.h"

#include <QSignalSpy>
#include <QTest>

class TestDeviceInfoReceiver : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSixQuestionsAreAskedInOrderAndTheFirstTwice();
    void answers_data();
    void answers();
    void theAnswersAreEmptyUntilAllAreIn();
    void afterTheSixthAnswerItIsReportedOnceAndNothingMoreHappens();
    void aDeviceThatRefusesIsNeverReported();
    void aDeviceThatStopsAnsweringIsNeverReported_data();
    void aDeviceThatStopsAnsweringIsNeverReported();
    void startingTwiceAsksOnce();
    void startingAfterTheDeviceClosedAsksFromTheBeginning();
};

namespace {

const QByteArray okId = "OK devinfo deviceid \"12\"\r\n";
const QByteArray okName = "OK devinfo devicename \"Room-A\"\r\n";
const QByteArray okVersion = "OK devinfo version \"V2.0.1\"\r\n";
const QByteArray okSerial = "OK devinfo serialno \"S7\"\r\n";
const QByteArray okPreset = "OK sscurrent_ex config 3\r\n";

QList<QByteArray> wellBehaved()
{
    return {okId, okId, okName, okVersion, okSerial, okPreset};
}

QList<QByteArray> with(int index, const QByteArray& answer)
{
    QList<QByteArray> arrivals = wellBehaved();
    arrivals[index] = answer;
    return arrivals;
}

bool isClosed(const DeviceInfoReceiver& receiver)
{
    return receiver.findChild<QTcpSocket*>()->state() == QAbstractSocket::UnconnectedState;
}

QStringList valuesOf(const DeviceInfoReceiver& receiver)
{
    return {receiver.deviceId(), receiver.deviceName(), receiver.version(), receiver.serialNumber(),
            receiver.currentPreset()};
}

// Lets each entry arrive on its own: the receiver asks on at every arrival, so the next one is sent
// when the question that the last one provoked is there.
void deliver(TextPeer& peer, const QList<QByteArray>& arrivals)
{
    for (const QByteArray& arrival : arrivals) {
        QTRY_COMPARE(peer.lines(), peer.sends() + 1);
        peer.send(arrival);
    }
}

} // namespace

void TestDeviceInfoReceiver::theSixQuestionsAreAskedInOrderAndTheFirstTwice()
{
    TextPeer peer(QStringLiteral("127.30.4.1"));
    QVERIFY(peer.listen());
    peer.answerWith(wellBehaved());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(peer.received(), QByteArray("devinfo deviceid\ndevinfo deviceid\n"
                                         "devinfo devicename\ndevinfo version\n"
                                         "devinfo serialno\nsscurrent_ex config\n"));
    QCOMPARE(receiver.hostAddress().toString(), peer.address());
    QVERIFY2(peer.isOnline(), "the connection stays open");
}

void TestDeviceInfoReceiver::answers_data()
{
    QTest::addColumn<QList<QByteArray>>("arrivals");
    QTest::addColumn<QStringList>("values");
    const auto row = [](const char* name, const QList<QByteArray>& arrivals, const char* id,
                        const char* label, const char* version, const char* serial,
                        const char* preset) {
        QTest::newRow(name) << arrivals
                            << QStringList{QString::fromUtf8(id), QString::fromUtf8(label),
                                           QString::fromUtf8(version), QString::fromUtf8(serial),
                                           QString::fromUtf8(preset)};
    };
    row("a well-behaved device", wellBehaved(), "12", "Room-A", "V2.0.1", "S7", "3");
    row("a greeting together with the first answer is absorbed", with(0, "HELLO\r\n" + okId), "12",
        "Room-A", "V2.0.1", "S7", "3");
    row("a greeting on its own shifts the answers",
        {"HELLO\r\n", okId, okId, okName, okVersion, okSerial}, "12", "12", "Room-A", "V2.0.1",
        "\"S7\"");
    row("an answer split in two shifts the answers behind it",
        {okId, okId, "OK devinfo devicename \"Ro", "om-A\"\r\n", okVersion, okSerial}, "12", "", "",
        "V2.0.1", "\"S7\"");
    row("two answers arriving in one shift the answers behind them",
        {okId, okId + okName, okVersion, okSerial, okPreset, okPreset}, "12", "V2.0.1", "S7", "",
        "3");
    row("a name split inside its quotes is empty", with(2, "OK devinfo devicename \"Ro"), "12", "",
        "V2.0.1", "S7", "3");
    row("an answer ERROR without quotes is empty", with(3, "ERROR devinfo version\r\n"), "12",
        "Room-A", "", "S7", "3");
    row("an answer without quotes is empty", with(4, "OK devinfo serialno S7\r\n"), "12", "Room-A",
        "V2.0.1", "", "3");
    row("ERROR for the preset is empty", with(5, "ERROR sscurrent_ex config 3\r\n"), "12", "Room-A",
        "V2.0.1", "S7", "");
    row("three words for the preset are empty", with(5, "OK sscurrent_ex config\r\n"), "12",
        "Room-A", "V2.0.1", "S7", "");
    row("a multi-byte name", with(2, "OK devinfo devicename \"S\xc3\xa4l\"\n"), "12", "Säl",
        "V2.0.1", "S7", "3");
    row("garbage everywhere", QList<QByteArray>(6, QByteArray("\xff\x00\xfe\x80", 4)), "", "", "",
        "", "");
    row("only line ends", QList<QByteArray>(6, QByteArray("\r\n")), "", "", "", "", "");
}

void TestDeviceInfoReceiver::answers()
{
    QFETCH(const QList<QByteArray>, arrivals);
    TextPeer peer(QStringLiteral("127.30.4.2"));
    QVERIFY(peer.listen());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    deliver(peer, arrivals);
    QTRY_COMPARE(received.size(), 1);
    QTEST(valuesOf(receiver), "values");
}

void TestDeviceInfoReceiver::theAnswersAreEmptyUntilAllAreIn()
{
    TextPeer peer(QStringLiteral("127.30.4.3"));
    QVERIFY(peer.listen());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    deliver(peer, wellBehaved().first(5));
    QTRY_COMPARE(peer.lines(), 6);
    QCOMPARE(valuesOf(receiver).join(QString()), QString());
    QCOMPARE(received.size(), 0);
    peer.send(okPreset);
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(receiver.deviceName(), QStringLiteral("Room-A"));
}

void TestDeviceInfoReceiver::afterTheSixthAnswerItIsReportedOnceAndNothingMoreHappens()
{
    TextPeer peer(QStringLiteral("127.30.4.4"));
    QVERIFY(peer.listen());
    peer.answerWith(wellBehaved());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    QTRY_COMPARE(received.size(), 1);

    const QStringList before = valuesOf(receiver);
    auto* const socket = receiver.findChild<QTcpSocket*>();
    QSignalSpy arrived(socket, SIGNAL(readyRead()));
    peer.send("NOTIFY sscurrent_ex config 9\n");
    QTRY_COMPARE(arrived.size(), 1);
    peer.hangUp();
    QTRY_VERIFY(isClosed(receiver));
    QCOMPARE(valuesOf(receiver), before);
    QCOMPARE(received.size(), 1);
    QCOMPARE(peer.lines(), 6);
}

void TestDeviceInfoReceiver::aDeviceThatRefusesIsNeverReported()
{
    DeviceInfoReceiver receiver(QHostAddress(QStringLiteral("127.30.4.5")), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    QTRY_VERIFY(isClosed(receiver));
    QCOMPARE(received.size(), 0);
    QCOMPARE(valuesOf(receiver).join(QString()), QString());
}

void TestDeviceInfoReceiver::aDeviceThatStopsAnsweringIsNeverReported_data()
{
    QTest::addColumn<int>("answered");
    for (int answered = 0; answered < 6; ++answered) {
        QTest::addRow("after %d answers", answered) << answered;
    }
}

void TestDeviceInfoReceiver::aDeviceThatStopsAnsweringIsNeverReported()
{
    QFETCH(const int, answered);
    TextPeer peer(QStringLiteral("127.30.4.6"));
    QVERIFY(peer.listen());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    deliver(peer, wellBehaved().first(answered));
    QTRY_COMPARE(peer.lines(), answered + 1);
    QVERIFY2(peer.isOnline(), "the receiver waits without a time-out");
    peer.switchOff();
    QTRY_VERIFY(isClosed(receiver));
    QCOMPARE(received.size(), 0);
}

void TestDeviceInfoReceiver::startingTwiceAsksOnce()
{
    TextPeer peer(QStringLiteral("127.30.4.7"));
    QVERIFY(peer.listen());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    receiver.start();
    deliver(peer, wellBehaved().first(2));
    receiver.start();
    deliver(peer, wellBehaved().mid(2));
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(peer.connections(), 1);
}

void TestDeviceInfoReceiver::startingAfterTheDeviceClosedAsksFromTheBeginning()
{
    TextPeer peer(QStringLiteral("127.30.4.8"));
    QVERIFY(peer.listen());
    DeviceInfoReceiver receiver(peer.hostAddress(), nullptr);
    const QSignalSpy received(&receiver, SIGNAL(deviceInfoReceived()));
    receiver.start();
    deliver(peer, wellBehaved().first(3));
    QTRY_COMPARE(peer.lines(), 4);
    peer.hangUp();
    QTRY_VERIFY(isClosed(receiver));

    peer.answerWith(wellBehaved());
    receiver.start();
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(valuesOf(receiver).join(u' '), QStringLiteral("12 Room-A V2.0.1 S7 3"));
}

TESSEL_TEST_MAIN(TestDeviceInfoReceiver)
#include "tst_deviceinforeceiver.moc"
