#include "devicequeries.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

#include <array>

/// A document in a program that was started with the arguments of main() below.
class TestHandover : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void documentStartsWithInterfaceAndDevicesOfTheArguments();
    void whoAsksIsToldThatNobodySearches();
};

void TestHandover::documentStartsWithInterfaceAndDevicesOfTheArguments()
{
    TesselDoc doc(nullptr);
    QVariantMap data;
    QVERIFY(doc.getData(1, data));
    QCOMPARE(data.value(QStringLiteral("DataType:NicIndex=int")).toInt(), 7);
    QCOMPARE(deviceCount(doc), 1);
    const auto device = deviceByAddress(doc, QStringLiteral("192.168.0.10"));
    QVERIFY(device);
    QCOMPARE(device->modelName, QStringLiteral("PX-HB"));
    QCOMPARE(device->label, QStringLiteral("Süd"));
}

void TestHandover::whoAsksIsToldThatNobodySearches()
{
    TesselDoc doc(nullptr);
    QVERIFY(isNicHandedOver(doc));
    QVariantMap data;
    QVERIFY(doc.getData(1, data));
    QCOMPARE(data.size(), 1);
}

int main(int argc, char** argv)
{
    // Qt Test must not meet the wizard's arguments: it would refuse to run.
    QByteArray nic = "-N:7";
    QByteArray device =
        QStringLiteral("-D:\"PX-HB\"/Süd/2.1.0/192.168.0.10/00:a0:de:00:00:01").toLocal8Bit();
    QByteArray tooOld = "-D:PX-HB/Old/1.0.0/192.168.0.11/00:a0:de:00:00:02";
    std::array<char*, 5> arguments = {argv[0], nic.data(), device.data(), tooOld.data(), nullptr};
    int count = int(arguments.size()) - 1;
    const QCoreApplication application(count, arguments.data());
    TestHandover test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_handover.moc"
