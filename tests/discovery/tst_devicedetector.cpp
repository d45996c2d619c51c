#include "discoverypacket.h"
#include "interfaceaddress.h"
#include "loopbacksearch.h"
#include "testcase.h"

#include <QNetworkAddressEntry>
#include <QNetworkDatagram>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

class TestDeviceDetector : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theRecordHoldsWhatTheReplyAndTheIdentitySaid();
    void anUnknownAddressHasAnEmptyRecord();
    void aModelAndItsAddressAreLogged();
    void aNonHubIsReportedAsSoonAsItsIdentityIsKnown();
    void aSecondReplyOfAKnownAddressStartsNoNewQuery();
    void theAddressInsideTheReplyCounts();
    void datagramsThatStartNoQuery_data();
    void datagramsThatStartNoQuery();
    void oddRepliesThatAreTakenNonetheless_data();
    void oddRepliesThatAreTakenNonetheless();
    void twoDatagramsOfOneSenderReadTogetherAreDropped();
    void repliesOfManySendersReadTogetherAreAllTaken();
    void repliesWithoutAUsableAddressAreNeverReported_data();
    void repliesWithoutAUsableAddressAreNeverReported();
    void devicesWithAFaultyIdentity_data();
    void devicesWithAFaultyIdentity();
    void withoutAnInterfaceNothingIsFound_data();
    void withoutAnInterfaceNothingIsFound();
    void aTakenPortFindsNothing();
    void detectingAgainKeepsTheSocket();
    void whoAnswersAndWhoTellsAnIdentityIsToldToo();
    void oneAddressAloneIsAskedTheSameQuery();
    void itListensOnceAPortWasToBeHad();
    void destroyingTheDetectorInTheMiddleIsHarmless();
    void theFirstIpv4EntryIsTheLocalAddress();
};

void TestDeviceDetector::init()
{
    TestCase::init();
    QVERIFY(loopbackIndex() != 0);
}

void TestDeviceDetector::theRecordHoldsWhatTheReplyAndTheIdentitySaid()
{
    SimpleDevice device(address(1), "PX-DL5", "S1", char(0xff));
    QVERIFY(device.open());
    Search search;
    answer(device);
    QTRY_COMPARE(search.reported(), QStringList{address(1)});
    const DetectedDevice found = search.detector.deviceInfo(address(1));
    QCOMPARE(found.nameText, QStringLiteral("device"));
    QCOMPARE(found.modelName, QStringLiteral("PX-DL5"));
    QCOMPARE(found.macAddress, QStringLiteral("00:A0:DE:0F:10:FF"));
    QCOMPARE(found.ipAddress, address(1));
    QCOMPARE(found.deviceId, QStringLiteral("1"));
    QCOMPARE(found.deviceName, QStringLiteral("Device 127.30.3.1"));
    QCOMPARE(found.version, QStringLiteral("V2.0.1"));
    QCOMPARE(found.serialNumber, QStringLiteral("S1"));
    QCOMPARE(found.currentPreset, QStringLiteral("3"));
    QCOMPARE(found.searchType, QStringLiteral("QNFL"));
    QCOMPARE(found.password, QString());
    QVERIFY(found.receiver != nullptr);
    QCOMPARE(found.receiver->parent(), &search.detector);
}

void TestDeviceDetector::anUnknownAddressHasAnEmptyRecord()
{
    const DeviceDetector detector(nullptr, 0);
    const DetectedDevice unknown = detector.deviceInfo(address(1));
    QVERIFY(unknown.ipAddress.isNull() && unknown.modelName.isNull());
    QVERIFY(unknown.searchType.isNull());
    QVERIFY(unknown.receiver == nullptr);
}

void TestDeviceDetector::aModelAndItsAddressAreLogged()
{
    SimpleDevice device(address(2), "PX-DL5", "S2", 1);
    QVERIFY(device.open());
    Search search;
    QTest::ignoreMessage(QtDebugMsg, "Model:PX-DL5");
    QTest::ignoreMessage(QtDebugMsg, "IP:127.30.3.2");
    answer(device);
    QTRY_COMPARE(search.spy.size(), 1);
}

void TestDeviceDetector::aNonHubIsReportedAsSoonAsItsIdentityIsKnown()
{
    SimpleDevice hub(address(3), "PX-HB", "H3", 1);
    SimpleDevice speaker(address(4), "DSK4M", "S4", 1);
    QVERIFY(hub.open() && speaker.open());
    Search search;
    answer(hub);
    QTRY_VERIFY(search.isIdentified(address(3)));
    answer(speaker);
    QTRY_VERIFY(search.isIdentified(address(4)));
    QCOMPARE(search.reported(), QStringList{address(4)});
}

void TestDeviceDetector::aSecondReplyOfAKnownAddressStartsNoNewQuery()
{
    SimpleDevice device(address(24), "PX-DL5", "S24", 1);
    QVERIFY(device.open());
    Search search;
    answer(device);
    QTRY_COMPARE(search.reported(), QStringList{address(24)});
    search.detector.detect();
    ScriptedReply renamed = device.reply();
    renamed.model = "PX-BK";
    device.send(renamed.bytes(), wizard);
    waitForControlDevice(search);
    QCOMPARE(search.reported(), (QStringList{address(24), address(250)}));
    QCOMPARE(search.queries(), 2);
    QCOMPARE(device.commands().connections(), 1);
    QCOMPARE(search.detector.deviceInfo(address(24)).modelName, QStringLiteral("PX-DL5"));
}

void TestDeviceDetector::theAddressInsideTheReplyCounts()
{
    SimpleDevice sender(address(25), "PX-DL5", "S25", 1);
    SimpleDevice named(address(26), "PX-DL5", "S26", 1);
    QVERIFY(sender.open() && named.open());
    Search search;
    sender.send(named.reply().bytes(), wizard);
    QTRY_COMPARE(search.reported(), QStringList{address(26)});
    QCOMPARE(sender.commands().connections(), 0);
}

void TestDeviceDetector::datagramsThatStartNoQuery_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, const std::function<void(ScriptedReply&)>& spoil) {
        auto reply = ScriptedReply::from(address(30), "PX-DL5", 1);
        spoil(reply);
        QTest::newRow(name) << reply.bytes();
    };
    row("byte 6 is 0x00", [](ScriptedReply& reply) { reply.flags = 0; });
    row("byte 6 is 0x01", [](ScriptedReply& reply) { reply.flags = 1; });
    row("byte 6 is 0x7F", [](ScriptedReply& reply) { reply.flags = 0x7F; });
    row("length one too high", [](ScriptedReply& reply) { reply.lengthError = 1; });
    row("length one too low", [](ScriptedReply& reply) { reply.lengthError = -1; });
    row("another magic", [](ScriptedReply& reply) { reply.magic = "QNFX"; });
    QTest::newRow("the detector's own query") << buildDiscoveryQuery(wizard, 0, 0);
    QTest::newRow("an empty datagram") << QByteArray();
    QTest::newRow("four bytes") << QByteArray("QNFL");
    QTest::newRow("garbage") << QByteArray(1400, '\xff');
    const QByteArray whole = ScriptedReply::from(address(30), "PX-DL5", 1).bytes();
    QTest::newRow("the last byte missing") << whole.chopped(1);
}

void TestDeviceDetector::datagramsThatStartNoQuery()
{
    QFETCH(const QByteArray, bytes);
    SimpleDevice device(address(30), "PX-DL5", "S30", 1);
    QVERIFY(device.open());
    Search search;
    device.send(bytes, wizard);
    waitForControlDevice(search);
    QCOMPARE(search.reported(), QStringList{address(250)});
    QCOMPARE(search.queries(), 1);
    answer(device);
    QTRY_COMPARE(search.reported(), (QStringList{address(250), address(30)}));
}

void TestDeviceDetector::oddRepliesThatAreTakenNonetheless_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("model");
    const auto row = [](const char* name, const char* model,
                        const std::function<void(ScriptedReply&)>& spoil) {
        auto reply = ScriptedReply::from(address(37), "PX-DL5", 1);
        spoil(reply);
        QTest::newRow(name) << reply.bytes() << QString::fromUtf8(model);
    };
    row("byte 6 is 0x81", "PX-DL5", [](ScriptedReply& reply) { reply.flags = char(0x81); });
    row("byte 6 is 0xFF", "PX-DL5", [](ScriptedReply& reply) { reply.flags = char(0xFF); });
    row("another service", "PX-DL5", [](ScriptedReply& reply) { reply.service = "_other"; });
    row("no service", "PX-DL5", [](ScriptedReply& reply) { reply.service.clear(); });
    row("no body", "", [](ScriptedReply& reply) { reply.bodyIndicator = QByteArray(2, '\0'); });
    row("an empty model", "", [](ScriptedReply& reply) { reply.model.clear(); });
    row("a name that is no UTF-8", "PX-DL5", [](ScriptedReply& reply) { reply.name = "\xFF"; });
    row("a non-ASCII model", "PX-\xC3\x9C",
        [](ScriptedReply& reply) { reply.model = "PX-\xC3\x9C"; });
    row("a MAC address of zeros", "PX-DL5",
        [](ScriptedReply& reply) { reply.mac = QByteArray(6, '\0'); });
}

void TestDeviceDetector::oddRepliesThatAreTakenNonetheless()
{
    QFETCH(const QByteArray, bytes);
    SimpleDevice device(address(37), "PX-DL5", "S37", 1);
    QVERIFY(device.open());
    Search search;
    device.send(bytes, wizard);
    QTRY_COMPARE(search.reported(), QStringList{address(37)});
    QTEST(search.detector.deviceInfo(address(37)).modelName, "model");
}

void TestDeviceDetector::twoDatagramsOfOneSenderReadTogetherAreDropped()
{
    SimpleDevice device(address(31), "PX-DL5", "S31", 1);
    QVERIFY(device.open());
    Search search;
    answer(device);
    answer(device);
    waitForControlDevice(search);
    QCOMPARE(search.reported(), QStringList{address(250)});
    answer(device);
    QTRY_COMPARE(search.reported(), (QStringList{address(250), address(31)}));
}

void TestDeviceDetector::repliesOfManySendersReadTogetherAreAllTaken()
{
    std::vector<std::unique_ptr<SimpleDevice>> devices;
    QStringList expected;
    for (int i = 100; i < 200; ++i) {
        devices.push_back(std::make_unique<SimpleDevice>(address(i), "PX-DL5", "S", 1));
        QVERIFY(devices.back()->open());
        expected += address(i);
    }
    Search search;
    for (const auto& device : devices) {
        answer(*device);
    }
    QTRY_COMPARE(search.spy.size(), expected.size());
    QStringList found = search.reported();
    found.sort();
    QCOMPARE(found, expected);
}

void TestDeviceDetector::repliesWithoutAUsableAddressAreNeverReported_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("an unknown family") << 7 << QByteArray::fromHex("7f1e0320");
    QTest::newRow("an IPv6 address with minus signs")
        << 6 << QByteArray::fromHex("fe80000000000000000000000000f001");
    // The device's own text form is shorter than that of its record.
    QTest::newRow("an IPv6 address in full") << 6 << QByteArray(15, '\0') + '\x01';
    QTest::newRow("an address nobody has") << 4 << QByteArray::fromHex("7f1e03fa");
}

void TestDeviceDetector::repliesWithoutAUsableAddressAreNeverReported()
{
    QFETCH(const int, family);
    QFETCH(const QByteArray, address);
    SimpleDevice device(::address(32), "PX-DL5", "S32", 1);
    QVERIFY(device.open());
    Search search;
    ScriptedReply reply = device.reply();
    reply.family = char(family);
    reply.address = address;
    device.send(reply.bytes(), wizard);
    QTRY_COMPARE(search.queries(), 1);
    auto* const receiver = search.detector.findChild<DeviceInfoReceiver*>();
    auto* const socket = receiver->findChild<QTcpSocket*>();
    QTRY_COMPARE(socket->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(search.spy.size(), 0);
}

void TestDeviceDetector::devicesWithAFaultyIdentity_data()
{
    QTest::addColumn<QList<QByteArray>>("answers");
    QTest::addColumn<bool>("isReported");
    const QByteArray fine = "OK devinfo x \"v\"\n";
    const QByteArray garbage = "\xff\xfe\n";
    QTest::newRow("no answer at all") << QList<QByteArray>() << false;
    QTest::newRow("the last answer missing") << QList<QByteArray>(5, fine) << false;
    QTest::newRow("all answers ERROR") << QList<QByteArray>(6, "ERROR\n") << true;
    QTest::newRow("all answers without quotes") << QList<QByteArray>(6, "OK devinfo x v\n") << true;
    QTest::newRow("all answers garbage") << QList<QByteArray>(6, garbage) << true;
}

void TestDeviceDetector::devicesWithAFaultyIdentity()
{
    QFETCH(const QList<QByteArray>, answers);
    QFETCH(const bool, isReported);
    SimpleDevice device(address(33), "PX-DL5", "S33", 1);
    QVERIFY(device.open());
    device.commands().answerWith(answers);
    Search search;
    answer(device);
    QTRY_COMPARE(device.commands().lines(), qMin(6, int(answers.size()) + 1));
    if (isReported) {
        QTRY_COMPARE(search.reported(), QStringList{address(33)});
        QCOMPARE(search.detector.deviceInfo(address(33)).deviceName, QString());
    } else {
        waitForControlDevice(search);
        QCOMPARE(search.reported(), QStringList{address(250)});
    }
}

void TestDeviceDetector::withoutAnInterfaceNothingIsFound_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("index 0") << 0;
    QTest::newRow("an index that no interface has") << 987654;
    QTest::newRow("a negative index") << -1;
}

void TestDeviceDetector::withoutAnInterfaceNothingIsFound()
{
    QFETCH(const int, index);
    QUdpSocket listener;
    QVERIFY(listener.bind(QHostAddress(address(34)), DeviceDetector::port));
    DeviceDetector detector(nullptr, index);
    const QSignalSpy spy(&detector, SIGNAL(deviceDetected(QString)));
    detector.detect();
    detector.detect();
    QCoreApplication::processEvents();
    QVERIFY(!listener.hasPendingDatagrams());
    QCOMPARE(spy.size(), 0);
    QVERIFY(detector.findChild<DeviceInfoReceiver*>() == nullptr);
}

void TestDeviceDetector::aTakenPortFindsNothing()
{
    QUdpSocket occupant;
    QVERIFY(occupant.bind(QHostAddress(wizard), DeviceDetector::port));
    SimpleDevice device(address(35), "PX-DL5", "S35", 1);
    QVERIFY(device.open());
    Search search;
    search.detector.detect();
    answer(device);
    QTRY_VERIFY(occupant.hasPendingDatagrams());
    QCOMPARE(occupant.pendingDatagramSize(), device.reply().bytes().size());
    QCOMPARE(search.queries(), 0);
}

void TestDeviceDetector::detectingAgainKeepsTheSocket()
{
    Search search;
    const auto sockets = search.detector.findChildren<QUdpSocket*>();
    QCOMPARE(sockets.size(), 1);
    QCOMPARE(sockets.first()->localPort(), 54330);
    QCOMPARE(sockets.first()->localAddress(), QHostAddress(wizard));
    search.detector.detect();
    QCOMPARE(search.detector.findChildren<QUdpSocket*>(), sockets);
    waitForControlDevice(search);
    QCOMPARE(search.spy.size(), 1);
}

void TestDeviceDetector::whoAnswersAndWhoTellsAnIdentityIsToldToo()
{
    SimpleDevice told(address(1), "PX-DL5", "S1", 1);
    SimpleDevice mute(address(2), "PX-DL5", "S2", 2);
    QVERIFY(told.open() && mute.open());
    mute.commands().switchOff();
    Search search;
    const QSignalSpy answered(&search.detector, SIGNAL(deviceAnswered(QString)));
    const QSignalSpy identified(&search.detector, SIGNAL(deviceIdentified(QString)));
    answer(mute);
    QTRY_COMPARE(answered.size(), 1);
    answer(told);
    QTRY_COMPARE(identified.size(), 1);
    QCOMPARE(answered.first(), QVariantList{address(2)});
    QCOMPARE(answered.last(), QVariantList{address(1)});
    QCOMPARE(identified.first(), QVariantList{address(1)});
}

void TestDeviceDetector::oneAddressAloneIsAskedTheSameQuery()
{
    QUdpSocket asked;
    QVERIFY(asked.bind(QHostAddress(address(1)), DeviceDetector::port));
    Search search;
    search.detector.ask(address(1));
    QTRY_VERIFY(asked.hasPendingDatagrams());
    const QNetworkDatagram datagram = asked.receiveDatagram();
    QCOMPARE(datagram.data(), buildDiscoveryQuery(wizard, 0, 0));
    QCOMPARE(datagram.senderPort(), int(DeviceDetector::port));
}

void TestDeviceDetector::itListensOnceAPortWasToBeHad()
{
    QUdpSocket occupant;
    QVERIFY(occupant.bind(QHostAddress(wizard), DeviceDetector::port));
    const Search inVain;
    QVERIFY(!inVain.detector.isListening());
    occupant.close();
    const Search search;
    QVERIFY(search.detector.isListening());
    QVERIFY(!DeviceDetector(nullptr, loopbackIndex()).isListening());
}

void TestDeviceDetector::destroyingTheDetectorInTheMiddleIsHarmless()
{
    SimpleDevice device(address(36), "PX-HB", "H36", 1);
    QVERIFY(device.open());
    {
        Search search;
        answer(device);
        QTRY_VERIFY(search.isIdentified(address(36)));
        QVERIFY(device.commands().isOnline());
    }
    QTRY_VERIFY(!device.commands().isOnline());
}

void TestDeviceDetector::theFirstIpv4EntryIsTheLocalAddress()
{
    QNetworkAddressEntry ipv6;
    ipv6.setIp(QHostAddress(QStringLiteral("fe80::1")));
    QNetworkAddressEntry first;
    first.setIp(QHostAddress(QStringLiteral("10.0.0.1")));
    first.setBroadcast(QHostAddress(QStringLiteral("10.0.0.255")));
    QNetworkAddressEntry second;
    second.setIp(QHostAddress(QStringLiteral("10.0.1.1")));
    QCOMPARE(firstIpv4Entry({ipv6, first, second}), first);
    QVERIFY(firstIpv4Entry({ipv6}).ip().isNull());
    QVERIFY(firstIpv4Entry({}).broadcast().isNull());
}

TESSEL_TEST_MAIN(TestDeviceDetector)
#include "tst_devicedetector.moc"
