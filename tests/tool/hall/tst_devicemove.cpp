#include "devicemove.h"
#include "testcase.h"

#include <QTest>

namespace {

const QString old = QStringLiteral("10.0.0.1");
const QString other = QStringLiteral("10.0.0.2");
const QString present = QStringLiteral("10.0.0.9");

DeviceData deviceOf(const QString& address, int room)
{
    DeviceData device;
    device.ipAddress = address;
    device.roomNumber = room;
    return device;
}

DocumentData hall()
{
    DocumentData data;
    data.devices.append(deviceOf(old, 1));
    data.devices.append(deviceOf(other, 2));
    data.deviceSets.append({1, 1, other, false, QStringLiteral("L")});
    data.deviceSets.append({1, 1, old, true, QStringLiteral("R")});
    return data;
}

} // namespace

/// A device that answers at another address from now on.
class TestDeviceMove : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itKeepsItsRoomItsSetsAndItsSide();
    void othersStayAsAndWhereTheyAre();
    void whatSetsSaidOfTheNewAddressIsGivenUp();
    void theSameAddressChangesNothing();
};

void TestDeviceMove::itKeepsItsRoomItsSetsAndItsSide()
{
    DocumentData data = hall();
    moveDevice(data, old, present);
    QVERIFY(data.devices.find(old) == nullptr);
    QCOMPARE(data.devices.find(present)->roomNumber, 1);
    QVERIFY(data.deviceSets.find(1, 1, old) == nullptr);
    QVERIFY(data.deviceSets.find(1, 1, present)->remove);
    QCOMPARE(data.deviceSets.find(1, 1, present)->speakerPosition, QStringLiteral("R"));
}

void TestDeviceMove::othersStayAsAndWhereTheyAre()
{
    DocumentData data = hall();
    moveDevice(data, old, present);
    QCOMPARE(data.devices.all().at(0).ipAddress, present);
    QCOMPARE(data.devices.all().at(1).ipAddress, other);
    QCOMPARE(data.deviceSets.all().at(0).ipAddress, other);
    QCOMPARE(data.deviceSets.all().at(1).ipAddress, present);
}

void TestDeviceMove::whatSetsSaidOfTheNewAddressIsGivenUp()
{
    DocumentData data = hall();
    data.deviceSets.clear();
    data.deviceSets.append({1, 1, present, false, QStringLiteral("L")});
    data.deviceSets.append({2, 1, present, false, QStringLiteral("L")});
    data.deviceSets.append({1, 1, old, true, QStringLiteral("R")});
    moveDevice(data, old, present);
    QCOMPARE(data.deviceSets.all().size(), 1);
    QVERIFY(data.deviceSets.find(1, 1, present)->remove);
}

void TestDeviceMove::theSameAddressChangesNothing()
{
    DocumentData data = hall();
    moveDevice(data, old, old);
    QCOMPARE(data.devices.all().size(), 2);
    QCOMPARE(data.deviceSets.all().size(), 2);
    QVERIFY(data.deviceSets.find(1, 1, old)->remove);
}

TESSEL_TEST_MAIN(TestDeviceMove)
#include "tst_devicemove.moc"
