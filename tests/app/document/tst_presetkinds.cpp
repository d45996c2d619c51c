#include "datakey.h"
#include "datakind.h"
#include "devicequeries.h"
#include "documentfixtures.h"
#include "presetqueries.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

namespace {

const QString hub = QStringLiteral("10.0.0.1");
const QString speaker = QStringLiteral("10.0.0.2");

QVariantMap pair(int deviceSet, int scene)
{
    return {{DataKey::deviceSetNumber(), deviceSet}, {DataKey::sceneNumber(), scene}};
}

QVariantMap ofDevice(const QString& address, int scene)
{
    return {{DataKey::deviceIPAddress(), address}, {DataKey::sceneNumber(), scene}};
}

/// A hub and a speaker, together in set 1 of layout 1 and in set 2 of layout 2.
void fill(TesselDoc& doc)
{
    FoundDevice device = testDevice(QStringLiteral("Hub"), QStringLiteral("PX-HB"), hub);
    device.macAddress = QStringLiteral("a0:00:01");
    QVERIFY(addDevice(doc, device));
    device.modelName = QStringLiteral("DSK4M");
    device.ipAddress = speaker;
    device.macAddress = QStringLiteral("a0:00:02");
    QVERIFY(addDevice(doc, device));
    for (const int scene : {1, 2}) {
        QVERIFY(addToDeviceSet(doc, scene, scene, hub, false));
        QVERIFY(addToDeviceSet(doc, scene, scene, speaker, false));
    }
}

} // namespace

/// Presets and the files that they are installed as.
class TestPresetKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void presetIsFoundBySetAndLayout();
    void presetIsFoundByADeviceOfItsSet();
    void setNumberGoesBeforeTheAddress();
    void deviceInNoSetHasNoPreset();
    void otherSelectorsAreRefused();
    void samePairIsStoredOnce();
    void presetWithoutANameHasAnEmptyOne();
    void presetWithAMissingKeyIsRefused();
    void presetsAreListedInOrder();
    void clearedPresetsAreGone();
    void hubFileTellsSetAndContent();
    void peripheralsAreListed();
    void peripheralFileTellsMacAndContent();
    void changedLabelGoesIntoTheFiles();
    void equalLabelIsNoChange();
    void failingFileQueryAddsNothing_data();
    void failingFileQueryAddsNothing();
};

void TestPresetKinds::presetIsFoundBySetAndLayout()
{
    TesselDoc doc(nullptr);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("all")));
    QVERIFY(addPreset(doc, 2, 1, QStringLiteral("north")));
    QCOMPARE(presetName(doc, 2, 1), QStringLiteral("north"));
    QVERIFY(!presetName(doc, 1, 2));
}

void TestPresetKinds::presetIsFoundByADeviceOfItsSet()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(addPreset(doc, 2, 2, QStringLiteral("split")));
    QVariantMap data = ofDevice(speaker, 2);
    QVERIFY(doc.getData(DataKind::Preset, data));
    QCOMPARE(data.value(DataKey::deviceSetNumber()).toInt(), 2);
    QCOMPARE(data.value(DataKey::presetName()).toString(), QStringLiteral("split"));
    QVERIFY(!presetNameOfHub(doc, hub, 1));
}

void TestPresetKinds::setNumberGoesBeforeTheAddress()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("mine")));
    QVERIFY(addPreset(doc, 7, 1, QStringLiteral("other")));
    QVariantMap data = ofDevice(hub, 1);
    data.insert(DataKey::deviceSetNumber(), 7);
    QVERIFY(doc.getData(DataKind::Preset, data));
    QCOMPARE(data.value(DataKey::presetName()).toString(), QStringLiteral("other"));
}

void TestPresetKinds::deviceInNoSetHasNoPreset()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 0, 1, hub, false));
    QVERIFY(addPreset(doc, 0, 1, QStringLiteral("none")));
    QVERIFY(!presetNameOfHub(doc, hub, 1));
    QVERIFY(!presetNameOfHub(doc, speaker, 1));
}

void TestPresetKinds::otherSelectorsAreRefused()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("all")));
    for (QVariantMap selector :
         {QVariantMap(), QVariantMap{{DataKey::sceneNumber(), 1}},
          QVariantMap{{DataKey::deviceSetNumber(), 1}},
          QVariantMap{{DataKey::deviceIPAddress(), hub}},
          QVariantMap{{DataKey::deviceIPAddress(), hub}, {DataKey::deviceSetNumber(), 1}}}) {
        QVERIFY(!doc.getData(DataKind::Preset, selector));
    }
}

void TestPresetKinds::samePairIsStoredOnce()
{
    TesselDoc doc(nullptr);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("first")));
    QVERIFY(!addPreset(doc, 1, 1, QStringLiteral("second")));
    QCOMPARE(presetName(doc, 1, 1), QStringLiteral("first"));
}

void TestPresetKinds::presetWithoutANameHasAnEmptyOne()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Preset, pair(1, 1)));
    QCOMPARE(presetName(doc, 1, 1), QString());
}

void TestPresetKinds::presetWithAMissingKeyIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(!doc.addData(DataKind::Preset, {{DataKey::sceneNumber(), 1}}));
    QVERIFY(!doc.addData(DataKind::Preset, {{DataKey::deviceSetNumber(), 1}}));
    QList<QVariantMap> list;
    QVERIFY(!doc.getDataList(DataKind::Preset, {}, list));
}

void TestPresetKinds::presetsAreListedInOrder()
{
    TesselDoc doc(nullptr);
    QVERIFY(addPreset(doc, 2, 1, QStringLiteral("b")));
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("a")));
    QList<QVariantMap> list;
    // No selector narrows this list.
    QVERIFY(doc.getDataList(DataKind::Preset, pair(1, 1), list));
    QCOMPARE(list.size(), 2);
    QVariantMap expected = pair(2, 1);
    expected.insert(DataKey::presetName(), QStringLiteral("b"));
    QCOMPARE(list.first(), expected);
}

void TestPresetKinds::clearedPresetsAreGone()
{
    TesselDoc doc(nullptr);
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("a")));
    QVERIFY(doc.clearData(DataKind::Preset));
    QVERIFY(!presetName(doc, 1, 1));
    QVERIFY(addPreset(doc, 1, 1, QStringLiteral("b")));
}

void TestPresetKinds::hubFileTellsSetAndContent()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(setSpeakerPosition(doc, 2, 2, speaker, QStringLiteral("R")));
    QVariantMap data = ofDevice(hub, 2);
    QVERIFY(doc.getData(DataKind::PresetFile, data));
    QCOMPARE(data.value(DataKey::deviceSetNumber()).toInt(), 2);
    const QByteArray file = data.value(DataKey::presetFile()).toByteArray();
    QVERIFY(file.contains("peripheral.mac-addr1=\"a0:00:02\""));
    QVERIFY(file.contains("peripheral.position1=\"2\" peripheral.position2=\"1\""));
}

void TestPresetKinds::peripheralsAreListed()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QCOMPARE(peripheralsOfHub(doc, hub, 1), QStringList{speaker});
}

void TestPresetKinds::peripheralFileTellsMacAndContent()
{
    TesselDoc doc(nullptr);
    fill(doc);
    const auto file = peripheralPresetFile(doc, speaker);
    QVERIFY(file);
    QCOMPARE(file->macAddress, QStringLiteral("a0:00:02"));
    QCOMPARE(file->content, QByteArray("<provisioning>\n <config/>\n</provisioning>\n"));
}

void TestPresetKinds::changedLabelGoesIntoTheFiles()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(setDeviceLabel(doc, hub, QStringLiteral("Main")));
    QVERIFY(setDeviceLabel(doc, speaker, QStringLiteral("Left")));
    QVERIFY(
        hubPresetFile(doc, hub, 1)->contains("sys.systemname=\"Main\" sys.systemname-mode=\"0\""));
    QVERIFY(peripheralPresetFile(doc, speaker)->content.contains("sys.systemname=\"Left\""));
}

void TestPresetKinds::equalLabelIsNoChange()
{
    TesselDoc doc(nullptr);
    fill(doc);
    QVERIFY(setDeviceLabel(doc, speaker, QStringLiteral("Hub")));
    QVERIFY(!peripheralPresetFile(doc, speaker)->content.contains("sys.systemname"));
    QVERIFY(setDeviceLabel(doc, speaker, QStringLiteral("Left")));
    QVERIFY(setDeviceLabel(doc, speaker, QStringLiteral("Left")));
    QVERIFY(peripheralPresetFile(doc, speaker)->content.contains("sys.systemname=\"Left\""));
}

void TestPresetKinds::failingFileQueryAddsNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariantMap>("selector");
    for (const int kind : {DataKind::PresetFile, DataKind::DeviceIPList}) {
        QTest::addRow("kind %d, no layout", kind)
            << kind << QVariantMap{{DataKey::deviceIPAddress(), hub}};
        QTest::addRow("kind %d, no hub", kind) << kind << QVariantMap{{DataKey::sceneNumber(), 1}};
        QTest::addRow("kind %d, hub in no set", kind) << kind << ofDevice(hub, 3);
        QTest::addRow("kind %d, unknown hub", kind)
            << kind << ofDevice(QStringLiteral("10.9.9.9"), 1);
    }
    QTest::newRow("kind 15, no address") << DataKind::DevicePresetFile << QVariantMap();
    QTest::newRow("kind 15, unknown address")
        << DataKind::DevicePresetFile
        << QVariantMap{{DataKey::deviceIPAddress(), QStringLiteral("10.9.9.9")}};
}

void TestPresetKinds::failingFileQueryAddsNothing()
{
    QFETCH(const int, kind);
    QFETCH(const QVariantMap, selector);
    TesselDoc doc(nullptr);
    fill(doc);
    QVariantMap data = selector;
    QVERIFY(!doc.getData(kind, data));
    QCOMPARE(data, selector);
}

TESSEL_TEST_MAIN(TestPresetKinds)
#include "tst_presetkinds.moc"
