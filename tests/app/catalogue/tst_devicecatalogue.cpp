#include "acceptancerule.h"
#include "deviceclass.h"
#include "testcase.h"

#include <QTest>

class TestDeviceCatalogue : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLineIsReached_data();
    void everyLineIsReached();
    void everyModelIsAcceptedFromItsLeastFirmwareOn_data();
    void everyModelIsAcceptedFromItsLeastFirmwareOn();
    void modelsOutsideTheCatalogueAreNotKnown_data();
    void modelsOutsideTheCatalogueAreNotKnown();
    void onlyTheHubItselfGoesWithoutAFile_data();
    void onlyTheHubItselfGoesWithoutAFile();
    void onlyTheAccessPointIsNamedInAnotherMode();
};

namespace {

void addLines()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const DeviceModel& line : deviceCatalogue()) {
        QTest::newRow(qPrintable(line.text.toString())) << index++;
    }
}

const DeviceModel& lineAt(int index)
{
    return deviceCatalogue()[std::size_t(index)];
}

} // namespace

void TestDeviceCatalogue::everyLineIsReached_data()
{
    addLines();
}

void TestDeviceCatalogue::everyLineIsReached()
{
    QFETCH(const int, index);
    const DeviceModel& line = lineAt(index);
    QCOMPARE(findModel(line.text), &line);
    const DeviceModel* const ofVariant = findModel(line.text.toString() + u'_');
    QCOMPARE(ofVariant == &line, line.test == ModelTest::BeginsWith);
}

void TestDeviceCatalogue::everyModelIsAcceptedFromItsLeastFirmwareOn_data()
{
    addLines();
}

void TestDeviceCatalogue::everyModelIsAcceptedFromItsLeastFirmwareOn()
{
    QFETCH(const int, index);
    const DeviceModel& line = lineAt(index);
    QVERIFY(isDeviceAccepted(line.minFirmware, line.text));
    QVERIFY(!isDeviceAccepted(u"0.99.99", line.text));
}

void TestDeviceCatalogue::modelsOutsideTheCatalogueAreNotKnown_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"", "PX", "px-hb", " PX-HB", "XY-1", "DSK4", "DSK4M-B", "PNB-QE70"}) {
        QTest::newRow(*model == '\0' ? "empty" : model) << QString::fromLatin1(model);
    }
}

void TestDeviceCatalogue::modelsOutsideTheCatalogueAreNotKnown()
{
    QFETCH(const QString, model);
    QVERIFY(findModel(model) == nullptr);
    QCOMPARE(deviceClass(model), DeviceClass::Other);
    QVERIFY(hasOwnFile(model));
    QCOMPARE(nameMode(model), 0);
}

void TestDeviceCatalogue::onlyTheHubItselfGoesWithoutAFile_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("hasFile");
    QTest::newRow("hub") << QStringLiteral("PX-HB") << false;
    QTest::newRow("variant of the hub") << QStringLiteral("PX-HB2") << true;
    QTest::newRow("microphone") << QStringLiteral("PX-DL") << true;
    QTest::newRow("speaker") << QStringLiteral("DSK4M") << true;
    QTest::newRow("further model of the family") << QStringLiteral("PX-ZZ") << true;
}

void TestDeviceCatalogue::onlyTheHubItselfGoesWithoutAFile()
{
    QFETCH(const QString, model);
    QTEST(hasOwnFile(model), "hasFile");
}

void TestDeviceCatalogue::onlyTheAccessPointIsNamedInAnotherMode()
{
    for (const DeviceModel& line : deviceCatalogue()) {
        QCOMPARE(nameMode(line.text), line.text == u"PX-NDE" ? 1 : 0);
    }
    QCOMPARE(nameMode(u"PX-NDE-W8"), 1);
}

TESSEL_TEST_MAIN(TestDeviceCatalogue)
#include "tst_devicecatalogue.moc"
