#include "discoveryreply.h"
#include "hall.h"
#include "rawpeer.h"
#include "testcase.h"

#include <QNetworkDatagram>
#include <QSet>
#include <QTest>
#include <QUdpSocket>

namespace {

const QString firstAddress = QStringLiteral("127.10.20.1");
const QString listenAddress = QStringLiteral("127.10.8.255");
const QString querierAddress = QStringLiteral("127.10.8.1");

/// The query of 127.10.8.1, byte by byte.
const QByteArray query = QByteArray("QNFL") +
                         QByteArray::fromHex("0023"
                                             "00"
                                             "04"
                                             "7f0a0801000000000000000000000000"
                                             "000000000000"
                                             "08") +
                         QByteArray("_qno-scp") + QByteArray::fromHex("0000");

HallDescription hallOf(int hubs, int peripherals)
{
    HallDescription hall = *HallDescription::byCounts(hubs, peripherals, firstAddress);
    hall.discovery = true;
    hall.discoveryListen = listenAddress;
    return hall;
}

} // namespace

/// Asks and gathers the datagrams that come back, as they come.
class Querier : public QObject
{
    Q_OBJECT

public:
    bool bind()
    {
        connect(&m_socket, SIGNAL(readyRead()), this, SLOT(gather()));
        return m_socket.bind(QHostAddress(querierAddress), DiscoveryResponder::port);
    }

    void ask(const QByteArray& bytes = query, const QString& address = listenAddress)
    {
        m_socket.writeDatagram(bytes, QHostAddress(address), DiscoveryResponder::port);
    }

    qsizetype gathered() const { return m_datagrams.size(); }
    const QList<QNetworkDatagram>& datagrams() const { return m_datagrams; }

private Q_SLOTS:
    void gather()
    {
        while (m_socket.hasPendingDatagrams()) {
            m_datagrams.append(m_socket.receiveDatagram());
        }
    }

private:
    QUdpSocket m_socket;
    QList<QNetworkDatagram> m_datagrams;
};

/// Discovery over real sockets.
class TestDiscoveryResponder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void replyIsTheSameByteForByte();
    void everyDeviceAnswersFromItsOwnAddress();
    void hubWithTwoAddressesAnswersFromBoth();
    void manyDevicesAnswerWithoutLoss();
    void queryToOneAddressIsAnsweredByItAlone();
    void deviceThatAnswersOnlyDirectlyIsSilentWhenAllAreAsked();
    void deviceThatAnswersTextCommandsOnlyIsSilentToEveryQuery();
    void foreignDatagramsAreNotAnswered_data();
    void foreignDatagramsAreNotAnswered();
    void wrongQueryIsToldAndAnswered_data();
    void wrongQueryIsToldAndAnswered();
    void replyUnderAFault_data();
    void replyUnderAFault();
    void noDiscoveryUnlessAskedFor();
};

#define START_HALL_AND_QUERIER(hubs, peripherals)                                                  \
    Hall hall(hallOf(hubs, peripherals));                                                          \
    QString error;                                                                                 \
    QVERIFY2(hall.start(&error), qPrintable(error));                                               \
    Querier querier;                                                                               \
    QVERIFY(querier.bind())

void TestDiscoveryResponder::replyIsTheSameByteForByte()
{
    DeviceDescription device;
    device.label = QStringLiteral("Hub-1");
    device.model = QStringLiteral("PX-HB");
    device.version = QStringLiteral("2.1");
    QCOMPARE(
        discoveryReply(device, QStringLiteral("10.1.2.255"), QStringLiteral("00:A0:DE:0F:10:FF")),
        QByteArray("QNFL") +
            QByteArray::fromHex("0033"
                                "80"
                                "04"
                                "0a0102ff000000000000000000000000"
                                "00a0de0f10ff"
                                "08") +
            QByteArray("_qno-scp") + QByteArray::fromHex("0001") + "\x05Hub-1\x05PX-HB\x03" +
            "2.1");
}

void TestDiscoveryResponder::everyDeviceAnswersFromItsOwnAddress()
{
    START_HALL_AND_QUERIER(2, 6);
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(8));
    QSet<QString> senders;
    for (const QNetworkDatagram& datagram : querier.datagrams()) {
        senders.insert(datagram.senderAddress().toString());
        QCOMPARE(datagram.senderPort(), int(DiscoveryResponder::port));
        QCOMPARE(QHostAddress(datagram.senderAddress().toIPv4Address()).toString(),
                 QHostAddress(datagram.data().mid(8, 4).toHex().toUInt(nullptr, 16)).toString());
    }
    QCOMPARE(senders.size(), 8);
    QCOMPARE(hall.queryCount(), 1);
    QCOMPARE(hall.differences(), QStringList());
}

void TestDiscoveryResponder::hubWithTwoAddressesAnswersFromBoth()
{
    HallDescription description = hallOf(1, 0);
    description.addSecondAddresses(1);
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    Querier querier;
    QVERIFY(querier.bind());
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(2));
    QSet<QByteArray> macs;
    for (const QNetworkDatagram& datagram : querier.datagrams()) {
        macs.insert(datagram.data().mid(24, 6).toHex());
    }
    QCOMPARE(macs, (QSet<QByteArray>{"021a00000001", "021a00010001"}));
}

void TestDiscoveryResponder::manyDevicesAnswerWithoutLoss()
{
    START_HALL_AND_QUERIER(100, 300);
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(400));
}

void TestDiscoveryResponder::queryToOneAddressIsAnsweredByItAlone()
{
    HallDescription description = hallOf(1, 2);
    description.addSecondAddresses(1);
    const QString second = description.hubs.front().secondAddress;
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    Querier querier;
    QVERIFY(querier.bind());
    querier.ask(query, second);
    QTRY_COMPARE(querier.gathered(), qsizetype(1));
    // All four answer now: had the others answered before, there would be more.
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(5));
    QVERIFY(querier.datagrams().front().senderAddress().isEqual(QHostAddress(second)));
    QCOMPARE(hall.queryCount(), 2);
    QCOMPARE(hall.differences(), QStringList());
}

void TestDiscoveryResponder::deviceThatAnswersOnlyDirectlyIsSilentWhenAllAreAsked()
{
    START_HALL_AND_QUERIER(0, 2);
    hall.device(firstAddress)->setFault({.kind = FaultKind::DirectOnly});
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(1));
    QVERIFY(!querier.datagrams().front().senderAddress().isEqual(QHostAddress(firstAddress)));
    querier.ask(query, firstAddress);
    QTRY_COMPARE(querier.gathered(), qsizetype(2));
    QVERIFY(querier.datagrams().last().senderAddress().isEqual(QHostAddress(firstAddress)));
}

void TestDiscoveryResponder::deviceThatAnswersTextCommandsOnlyIsSilentToEveryQuery()
{
    START_HALL_AND_QUERIER(0, 2);
    hall.device(firstAddress)->setFault({.kind = FaultKind::NoReply});
    querier.ask(query, firstAddress);
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(1));
    QVERIFY(!querier.datagrams().front().senderAddress().isEqual(QHostAddress(firstAddress)));
    QCOMPARE(hall.queryCount(), 2);
    RawPeer peer;
    QVERIFY(peer.connectTo(firstAddress, SimulatedDevice::textPort));
    peer.send("devinfo deviceid\n");
    QVERIFY(peer.takeLine().startsWith("OK devinfo deviceid \""));
}

void TestDiscoveryResponder::foreignDatagramsAreNotAnswered_data()
{
    QTest::addColumn<QByteArray>("datagram");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another protocol") << QByteArray("hello, is anybody there?");
    QTest::newRow("a reply") << QByteArray(query).replace(6, 1, "\x80");
    QTest::newRow("the magic alone") << QByteArray("QNFL");
}

void TestDiscoveryResponder::foreignDatagramsAreNotAnswered()
{
    QFETCH(const QByteArray, datagram);
    START_HALL_AND_QUERIER(0, 1);
    querier.ask(datagram);
    querier.ask();
    QTRY_COMPARE(querier.gathered(), qsizetype(1));
    QCOMPARE(hall.queryCount(), 1);
    QCOMPARE(hall.differences(), QStringList());
    hall.stop();
    QCOMPARE(hall.queryCount(), 1);
}

void TestDiscoveryResponder::wrongQueryIsToldAndAnswered_data()
{
    QTest::addColumn<QByteArray>("datagram");
    QTest::addColumn<QString>("difference");
    QTest::newRow("another address") << QByteArray(query).replace(11, 1, "\x02")
                                     << QStringLiteral("query: byte 11: expected 0x01, got 0x02");
    QTest::newRow("a wrong length") << QByteArray(query).replace(5, 1, "\x24")
                                    << QStringLiteral("query: byte 5: expected 0x23, got 0x24");
    QTest::newRow("too short") << query.chopped(2)
                               << QStringLiteral("query: expected 41 bytes, got 39");
}

void TestDiscoveryResponder::wrongQueryIsToldAndAnswered()
{
    QFETCH(const QByteArray, datagram);
    QFETCH(const QString, difference);
    START_HALL_AND_QUERIER(0, 1);
    querier.ask(datagram);
    QTRY_COMPARE(querier.gathered(), qsizetype(1));
    QCOMPARE(hall.differences(), QStringList{difference});
    hall.stop();
    QCOMPARE(hall.differences(), QStringList{difference});
}

void TestDiscoveryResponder::replyUnderAFault_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QList<QByteArray>>("datagrams");
    const HallDescription hall = hallOf(0, 1);
    const QByteArray good =
        discoveryReply(hall.peripherals.front(), firstAddress, hall.peripherals.front().mac);
    const auto row = [](const char* name, const Fault& fault, const QList<QByteArray>& datagrams) {
        QTest::newRow(name) << fault << datagrams;
    };
    row("another magic", {.kind = FaultKind::WrongMagic}, {QByteArray(good).replace(0, 1, "X")});
    row("a length one too high", {.kind = FaultKind::WrongLength},
        {QByteArray(good).replace(5, 1, QByteArray(1, static_cast<char>(good.at(5) + 1)))});
    row("no reply flag", {.kind = FaultKind::NoReplyFlag},
        {QByteArray(good).replace(6, 1, QByteArray(1, '\0'))});
    row("cut short", {.kind = FaultKind::Truncated, .number = 30}, {good.first(30)});
    row("silence", {.kind = FaultKind::NoReply}, {});
    row("twice", {.kind = FaultKind::DuplicateReply}, {good, good});
    row("other bytes", {.kind = FaultKind::RawDatagram, .bytes = "hello"}, {"hello"});
}

void TestDiscoveryResponder::replyUnderAFault()
{
    QFETCH(const Fault, fault);
    QFETCH(const QList<QByteArray>, datagrams);
    START_HALL_AND_QUERIER(0, 2);
    hall.device(firstAddress)->setFault(fault);
    querier.ask();
    QTRY_COMPARE(querier.gathered(), datagrams.size() + 1);
    QList<QByteArray> fromFirst;
    for (const QNetworkDatagram& datagram : querier.datagrams()) {
        if (datagram.senderAddress().isEqual(QHostAddress(firstAddress))) {
            fromFirst.append(datagram.data());
        }
    }
    QCOMPARE(fromFirst, datagrams);
}

void TestDiscoveryResponder::noDiscoveryUnlessAskedFor()
{
    HallDescription description = hallOf(0, 1);
    description.discovery = false;
    Hall hall(description);
    QString error;
    QVERIFY2(hall.start(&error), qPrintable(error));
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress(listenAddress), DiscoveryResponder::port));
}

TESSEL_TEST_MAIN(TestDiscoveryResponder)
#include "tst_discoveryresponder.moc"
