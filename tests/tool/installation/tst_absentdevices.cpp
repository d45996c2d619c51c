#include "absentdevices.h"
#include "testcase.h"

#include <QTest>

namespace {

const QString address = QStringLiteral("10.0.0.5");
const QString mac = QStringLiteral("02:1A:00:00:00:05");
const QString model = QStringLiteral("PX-DL8");

DocumentData hallWithOne(int room)
{
    DeviceData device;
    device.label = QStringLiteral("Ceiling");
    device.ipAddress = address;
    device.macAddress = mac;
    device.modelName = model;
    device.roomNumber = room;
    DocumentData hall;
    hall.devices.append(device);
    return hall;
}

JudgedDevice found(const QString& at, const QString& withMac, const QString& ofModel,
                   Verdict verdict = Verdict::Taken)
{
    JudgedDevice device;
    device.record.ipAddress = at;
    device.record.macAddress = withMac;
    device.record.modelName = ofModel;
    device.record.version = QStringLiteral("1.0.0");
    device.verdict = verdict;
    device.neededFirmware = QStringLiteral("2");
    return device;
}

} // namespace

/// Which devices of a hall are missing, and why.
class TestAbsentDevices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDeviceThatIsThereIsNotMissed();
    void aDeviceInNoRoomIsNotMissed();
    void aDeviceThatIsNotThereAsItWasIsMissedWithItsReason_data();
    void aDeviceThatIsNotThereAsItWasIsMissedWithItsReason();
};

void TestAbsentDevices::aDeviceThatIsThereIsNotMissed()
{
    QVERIFY(absentDevices(hallWithOne(2), {found(address, mac, model)}).isEmpty());
}

void TestAbsentDevices::aDeviceInNoRoomIsNotMissed()
{
    QVERIFY(absentDevices(hallWithOne(0), {}).isEmpty());
}

void TestAbsentDevices::aDeviceThatIsNotThereAsItWasIsMissedWithItsReason_data()
{
    const QString otherMac = QStringLiteral("02:1A:00:00:00:06");
    const QString otherAddress = QStringLiteral("10.0.0.6");
    QTest::addColumn<QList<JudgedDevice>>("devices");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QList<JudgedDevice>& devices, const char* reason) {
        QTest::newRow(name) << devices << QString::fromLatin1(reason);
    };
    row("nobody", {}, "no answer");
    row("others", {found(otherAddress, otherMac, model)}, "no answer");
    row("elsewhere", {found(otherAddress, mac, model)},
        "no answer there; it has the address 10.0.0.6 now");
    row("another device", {found(address, otherMac, model)},
        "a device with another MAC address answers there, 02:1A:00:00:00:06");
    row("exchanged addresses", {found(address, otherMac, model), found(otherAddress, mac, model)},
        "a device with another MAC address answers there, 02:1A:00:00:00:06; it has the address "
        "10.0.0.6 now");
    row("another model", {found(address, mac, QStringLiteral("PNB-QE7"))},
        "another model answers there: PNB-QE7");
    row("old firmware", {found(address, mac, model, Verdict::FirmwareTooOld)},
        "firmware too old: has 1.0.0, needs 2");
    row("no identity", {found(address, mac, model, Verdict::NoIdentity)},
        "answered the query, but never told its identity");
}

void TestAbsentDevices::aDeviceThatIsNotThereAsItWasIsMissedWithItsReason()
{
    QFETCH(const QList<JudgedDevice>, devices);
    QFETCH(const QString, reason);
    const QList<AbsentDevice> absent = absentDevices(hallWithOne(2), devices);
    QCOMPARE(absent.size(), 1);
    QCOMPARE(absent.first().device.label, QStringLiteral("Ceiling"));
    QCOMPARE(absent.first().reason, reason);
}

TESSEL_TEST_MAIN(TestAbsentDevices)
#include "tst_absentdevices.moc"
