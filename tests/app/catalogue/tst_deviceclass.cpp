#include "deviceclass.h"
#include "testcase.h"

#include <QTest>

class TestDeviceClass : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void classOfModel_data();
    void classOfModel();
    void modelsOutsideTheClassesAreNotCounted();
    void countsAddUpByClass();
};

void TestDeviceClass::classOfModel_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("expected");

    const auto row = [](const char* model, DeviceClass expected) {
        QTest::newRow(model) << QString::fromLatin1(model) << int(expected);
    };
    row("PX-HB", DeviceClass::Hub);
    row("PX-HB2", DeviceClass::Hub);
    row("PX-DL", DeviceClass::Microphone);
    row("PX-DL5", DeviceClass::Microphone);
    row("PX-BK", DeviceClass::Microphone);
    row("PX-NDE", DeviceClass::Microphone);
    row("PX-NDE-W", DeviceClass::Microphone);
    row("LQA4-08S", DeviceClass::Speaker);
    row("DSK4M", DeviceClass::Speaker);
    row("DSK4M-B", DeviceClass::Other);
    row("PNB-QE7", DeviceClass::Controller);
    row("PNB-QE70", DeviceClass::Other);
    row("PX-ZZ", DeviceClass::Other);
    row("", DeviceClass::Other);
}

void TestDeviceClass::classOfModel()
{
    QFETCH(const QString, model);
    QTEST(int(deviceClass(model)), "expected");
    QCOMPARE(isHub(model), deviceClass(model) == DeviceClass::Hub);
}

void TestDeviceClass::modelsOutsideTheClassesAreNotCounted()
{
    DeviceCounts counts;
    QVERIFY(counts.isEmpty());
    counts.add(u"PX-ZZ");
    QVERIFY(counts.isEmpty());
}

void TestDeviceClass::countsAddUpByClass()
{
    DeviceCounts counts;
    for (const auto* model :
         {u"PX-HB", u"PX-DL", u"PX-BK", u"PX-NDE", u"DSK4M", u"LQA4-08S", u"PNB-QE7"}) {
        counts.add(model);
    }
    QCOMPARE(counts.hubs, 1);
    QCOMPARE(counts.microphones, 3);
    QCOMPARE(counts.speakers, 2);
    QCOMPARE(counts.controllers, 1);
    QVERIFY(!counts.isEmpty());
}

TESSEL_TEST_MAIN(TestDeviceClass)
#include "tst_deviceclass.moc"
