#include "devicedetector.h"
#include "deviceinforeceiver.h"
#include "discoverypacket.h"
#include "interfaceaddress.h"
#include "simpledevice.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QNetworkInterface>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <functional>

class TestDeviceDetector : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theRecordHoldsWhatTheReplyAndTheIdentitySaid();
    void anUnknownAddressHasAnEmptyRecord();
    void aModelAndItsAddressAreLogged();
    void aNonHubIsReportedAsSoonAsItsIdentityIsKnown();
    void aLoneHubIsReportedAThousandMillisecondsAfterItsIdentity();
    void twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac_data();
    void twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac();
    void twoAddressesWithEqualMacsAreNotReported();
    void aThirdAddressIsOnlyLogged();
    void aSecondAddressAfterTheReportChangesNothing();
    void aModelThatIsNotInCapitalsIsNoHub();
    void aReplyWithoutABodyIsNotTreatedAsAHub();
    void aSecondReplyOfAKnownAddressStartsNoNewQuery();
    void theAddressInsideTheReplyCounts();
    void datagramsThatStartNoQuery_data();
    void datagramsThatStartNoQuery();
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
    void destroyingTheDetectorInTheMiddleIsHarmless();
    void theFirstIpv4EntryIsTheLocalAddress();
};

namespace {

const QString wizard = QStringLiteral("127.0.0.1");

int loopbackIndex()
{
    for (const QNetworkInterface& nic : QNetworkInterface::allInterfaces()) {
        if (nic.flags().testFlag(QNetworkInterface::IsLoopBack)) {
            return nic.index();
        }
    }
    return 0;
}

QString address(int device)
{
    return QStringLiteral("127.30.3.%1").arg(device);
}

/// A detector that has sent its query, and what it has reported since.
struct Search
{
    Search() { detector.detect(); }

    QStringList reported() const
    {
        QStringList addresses;
        for (const QVariantList& arguments : spy) {
            addresses += arguments.first().toString();
        }
        return addresses;
    }

    qsizetype queries() const { return detector.findChildren<DeviceInfoReceiver*>().size(); }

    bool isIdentified(const QString& ipText) const
    {
        return !detector.deviceInfo(ipText).serialNumber.isEmpty();
    }

    DeviceDetector detector{nullptr, loopbackIndex()};
    QSignalSpy spy{&detector, SIGNAL(deviceDetected(QString))};
};

void answer(SimpleDevice& device)
{
    device.send(device.reply().bytes(), wizard);
}

// A device that is found after all that was sent before it shows what came of the others.
void waitForControlDevice(Search& search)
{
    SimpleDevice control(address(250), "PX-DL5", "control", 9);
    QVERIFY(control.open());
    answer(control);
    QTRY_VERIFY(search.reported().contains(address(250)));
}

} // namespace

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

void TestDeviceDetector::aLoneHubIsReportedAThousandMillisecondsAfterItsIdentity()
{
    SimpleDevice hub(address(5), "PX-HB2", "H5", 1);
    QVERIFY(hub.open());
    Search search;
    QElapsedTimer sinceReply;
    sinceReply.start();
    answer(hub);
    QTRY_VERIFY(search.isIdentified(address(5)));
    QCOMPARE(search.spy.size(), 0);
    QTRY_COMPARE(search.reported(), QStringList{address(5)});
    QVERIFY(sinceReply.elapsed() >= 1000);
}

void TestDeviceDetector::twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac_data()
{
    QTest::addColumn<int>("firstMac");
    QTest::addColumn<int>("secondMac");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the second address has the lower MAC") << 2 << 1 << address(11);
    QTest::newRow("the first address has the lower MAC") << 1 << 2 << address(10);
    QTest::newRow("0x9F is lower than 0xA0") << 0xA0 << 0x9F << address(11);
}

void TestDeviceDetector::twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac()
{
    QFETCH(const int, firstMac);
    QFETCH(const int, secondMac);
    QFETCH(const QString, expected);
    SimpleDevice first(address(10), "PX-HB", "H10", char(firstMac));
    SimpleDevice second(address(11), "PX-HB", "H10", char(secondMac));
    SimpleDevice later(address(12), "PX-HB", "H12", 3);
    QVERIFY(first.open() && second.open() && later.open());
    Search search;
    answer(first);
    QTRY_VERIFY(search.isIdentified(address(10)));
    answer(second);
    QTRY_COMPARE(search.reported(), QStringList{expected});

    // Once a later lone hub's second is over, that of the pair is too.
    answer(later);
    QTRY_COMPARE(search.reported(), (QStringList{expected, address(12)}));
}

void TestDeviceDetector::twoAddressesWithEqualMacsAreNotReported()
{
    SimpleDevice first(address(13), "PX-HB", "H13", 1);
    SimpleDevice second(address(14), "PX-HB", "H13", 1);
    SimpleDevice later(address(15), "PX-HB", "H15", 2);
    QVERIFY(first.open() && second.open() && later.open());
    Search search;
    answer(first);
    answer(second);
    QTRY_VERIFY(search.isIdentified(address(13)) && search.isIdentified(address(14)));
    answer(later);
    QTRY_COMPARE(search.reported(), QStringList{address(15)});
}

void TestDeviceDetector::aThirdAddressIsOnlyLogged()
{
    SimpleDevice first(address(16), "PX-HB", "H16", 3);
    SimpleDevice second(address(17), "PX-HB", "H16", 2);
    SimpleDevice third(address(18), "PX-HB", "H16", 1);
    QVERIFY(first.open() && second.open() && third.open());
    Search search;
    answer(first);
    QTRY_VERIFY(search.isIdentified(address(16)));
    answer(second);
    QTRY_COMPARE(search.reported(), QStringList{address(17)});
    QTest::ignoreMessage(QtDebugMsg, "[???]PX-HB:Serial No.=H16");
    answer(third);
    QTRY_VERIFY(search.isIdentified(address(18)));
    QCOMPARE(search.reported(), QStringList{address(17)});
}

void TestDeviceDetector::aSecondAddressAfterTheReportChangesNothing()
{
    SimpleDevice first(address(19), "PX-HB", "H19", 3);
    SimpleDevice second(address(20), "PX-HB", "H19", 2);
    SimpleDevice third(address(21), "PX-HB", "H19", 1);
    QVERIFY(first.open() && second.open() && third.open());
    Search search;
    answer(first);
    QTRY_COMPARE(search.reported(), QStringList{address(19)});
    answer(second);
    QTRY_VERIFY(search.isIdentified(address(20)));
    QTest::ignoreMessage(QtDebugMsg, "[???]PX-HB:Serial No.=H19");
    answer(third);
    QTRY_VERIFY(search.isIdentified(address(21)));
    QCOMPARE(search.reported(), QStringList{address(19)});
}

void TestDeviceDetector::aModelThatIsNotInCapitalsIsNoHub()
{
    SimpleDevice device(address(22), "px-hb", "S22", 1);
    QVERIFY(device.open());
    Search search;
    answer(device);
    QTRY_VERIFY(search.isIdentified(address(22)));
    QCOMPARE(search.reported(), QStringList{address(22)});
}

void TestDeviceDetector::aReplyWithoutABodyIsNotTreatedAsAHub()
{
    SimpleDevice device(address(23), "PX-HB", "S23", 1);
    QVERIFY(device.open());
    Search search;
    ScriptedReply reply = device.reply();
    reply.bodyIndicator = QByteArray(2, '\0');
    device.send(reply.bytes(), wizard);
    QTRY_VERIFY(search.isIdentified(address(23)));
    QCOMPARE(search.reported(), QStringList{address(23)});
    QCOMPARE(search.detector.deviceInfo(address(23)).modelName, QString());
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
