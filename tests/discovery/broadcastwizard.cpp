#include "broadcastwizard.h"

#include "broadcasthall.h"
#include "devicedetector.h"
#include "deviceinforeceiver.h"
#include "largehall.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

namespace {

int wizardIndex()
{
    return QNetworkInterface::interfaceIndexFromName(QStringLiteral("wizard"));
}

/// A search on the cable to the hall, and what it has reported since it began.
struct Search
{
    QStringList reported() const
    {
        QStringList addresses;
        for (const QVariantList& arguments : spy) {
            addresses += arguments.first().toString();
        }
        addresses.sort();
        return addresses;
    }

    qsizetype queries() const { return detector.findChildren<DeviceInfoReceiver*>().size(); }

    DeviceDetector detector{nullptr, wizardIndex()};
    QSignalSpy spy{&detector, SIGNAL(deviceDetected(QString))};
};

} // namespace

void BroadcastWizard::theQueryIsTheExactFortyOneBytes()
{
    Search search;
    search.detector.detect();
    QTRY_COMPARE(search.spy.size(), 1);
    // The device told what it heard, and from whom.
    const DetectedDevice device = search.detector.deviceInfo(hallAddress(1));
    QCOMPARE(device.nameText, QStringLiteral("10.54.0.1:54330"));
    QCOMPARE(device.modelName, QStringLiteral("514e464c002300040a360001000000000000000000000000"
                                              "000000000000085f716e6f2d7363700000"));
}

void BroadcastWizard::aTakenPortSendsNoQuery()
{
    QUdpSocket occupant;
    QVERIFY(occupant.bind(QHostAddress(QStringLiteral("10.54.0.1")), DeviceDetector::port));
    Search search;
    search.detector.detect();
    // The device answers whom it hears first, and tells who that was.
    occupant.writeDatagram("hello", QHostAddress(QStringLiteral("10.54.255.255")),
                           DeviceDetector::port);
    QTRY_VERIFY(occupant.hasPendingDatagrams());
    QVERIFY(occupant.receiveDatagram().data().contains("10.54.0.1:54330"));
    QCOMPARE(search.queries(), 0);
}

void BroadcastWizard::twoHundredAndFiftyDevicesAnsweringAtOnceAreAllFound()
{
    QStringList expected;
    for (int number = 1; number <= 250; ++number) {
        expected += hallAddress(number);
    }
    expected.sort();
    Search search;
    search.detector.detect();
    QTRY_COMPARE_WITH_TIMEOUT(search.spy.size(), expected.size(), 20000);
    QCOMPARE(search.reported(), expected);
    QCOMPARE(search.queries(), 250);
    for (const QString& address : expected) {
        const DetectedDevice device = search.detector.deviceInfo(address);
        QCOMPARE(device.deviceName, QStringLiteral("Device ") + address);
        QCOMPARE(device.serialNumber, address.section(u'.', 3));
    }
}

void BroadcastWizard::hubsAreReportedOncePerSerialNumber()
{
    Search search;
    search.detector.detect();
    // The lone hub comes last: its second is over when those of the pairs are.
    QTRY_COMPARE(search.reported(), (QStringList{hallAddress(11), hallAddress(12)}));
    QCOMPARE(search.queries(), 5);
}

void BroadcastWizard::malformedRepliesAreDroppedAmongGoodOnes()
{
    Search search;
    search.detector.detect();
    QTRY_COMPARE(search.reported(), QStringList{hallAddress(goodDevice)});
    QCOMPARE(search.queries(), 1);
}

void BroadcastWizard::aDeviceThatRefusesItsIdentityIsNotReported()
{
    Search search;
    search.detector.detect();
    QTRY_COMPARE(search.queries(), 2);
    auto* const refused =
        search.detector.deviceInfo(hallAddress(2)).receiver->findChild<QTcpSocket*>();
    QTRY_COMPARE(refused->state(), QAbstractSocket::UnconnectedState);
    QTRY_COMPARE(search.reported(), QStringList{hallAddress(1)});
}

void BroadcastWizard::askingTwiceReportsNobodyTwice()
{
    Search search;
    search.detector.detect();
    QTRY_COMPARE(search.spy.size(), 1);
    QSignalSpy arrived(search.detector.findChild<QUdpSocket*>(), SIGNAL(readyRead()));
    search.detector.detect();
    QTRY_COMPARE(arrived.size(), 1);
    QCOMPARE(search.queries(), 1);
    QCOMPARE(search.spy.size(), 1);
}

void BroadcastWizard::anInterfaceThatVanishesFindsNothingMore()
{
    const int index = wizardIndex();
    Search search;
    search.detector.detect();
    QTRY_COMPARE(search.spy.size(), 1);
    QCOMPARE(
        QProcess::execute(QStringLiteral("ip"), {QStringLiteral("link"), QStringLiteral("delete"),
                                                 QStringLiteral("wizard")}),
        0);
    search.detector.detect();
    DeviceDetector late(nullptr, index);
    late.detect();
    QCoreApplication::processEvents();
    QCOMPARE(search.spy.size(), 1);
    QCOMPARE(search.detector.deviceInfo(hallAddress(1)).modelName, QStringLiteral("PX-DL5"));
    QVERIFY(late.findChild<DeviceInfoReceiver*>() == nullptr);
}

void BroadcastWizard::aSimulatedHallIsFoundWhole()
{
    const HallDescription hall = largeHall();
    QStringList expected;
    for (const HubDescription& hub : hall.hubs) {
        const bool isFirstLower = hub.secondAddress.isEmpty() || hub.mac < hub.secondMac;
        expected += isFirstLower ? hub.address : hub.secondAddress;
    }
    for (const DeviceDescription& device : hall.peripherals) {
        expected += device.address;
    }
    expected.sort();
    QCOMPARE(expected.size(), 250);
    Search search;
    search.detector.detect();
    QTRY_COMPARE_WITH_TIMEOUT(search.spy.size(), expected.size(), 20000);
    QCOMPARE(search.reported(), expected);
    for (const DeviceDescription& device : hall.peripherals) {
        const DetectedDevice found = search.detector.deviceInfo(device.address);
        QCOMPARE(found.modelName, device.model);
        QCOMPARE(found.deviceName, device.label);
        QCOMPARE(found.version, device.version);
        QCOMPARE(found.macAddress, device.mac);
        QCOMPARE(found.serialNumber, device.serial);
        QCOMPARE(found.deviceId, device.deviceId);
    }
}
