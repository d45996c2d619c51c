#include "datakey.h"
#include "datakind.h"
#include "devicesetrecords.h"
#include "setqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

namespace {

QVariantMap key(int deviceSet, int scene, const QString& address)
{
    return {{DataKey::deviceSetNumber(), deviceSet},
            {DataKey::sceneNumber(), scene},
            {DataKey::deviceIPAddress(), address}};
}

int listed(TesselDoc& doc, const QVariantMap& selector)
{
    QList<QVariantMap> list;
    return doc.getDataList(DataKind::DeviceSet, selector, list) ? int(list.size()) : -1;
}

const QString first = QStringLiteral("10.0.0.1");
const QString second = QStringLiteral("10.0.0.2");

} // namespace

class TestDeviceSetKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newRecordIsKeptInTheSetAndStandsLeft();
    void choicesCanBeGivenWhileAdding();
    void sameTripleIsStoredOnce();
    void recordsDifferInEachPartOfTheTriple();
    void onlyTheGivenChoicesAreChanged();
    void missingRecordIsNotFound();
    void missingKeyIsRefused_data();
    void missingKeyIsRefused();
    void listIsNarrowedBySetAndLayout();
    void listIsInDocumentOrderWithAllValues();
    void listWithoutAMatchIsTrueWhileThereAreRecords();
    void clearedSetsCanBeFilledAgain();
    void firstRecordOfALayoutIsFoundWhateverItsSet();
};

void TestDeviceSetKinds::newRecordIsKeptInTheSetAndStandsLeft()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::DeviceSet, key(1, 2, first)));
    QVariantMap data = key(1, 2, first);
    QVERIFY(doc.getData(DataKind::DeviceSet, data));
    QCOMPARE(data.value(DataKey::deviceSetRemove()).toBool(), false);
    QCOMPARE(data.value(DataKey::speakerPosition()).toString(), QStringLiteral("L"));
}

void TestDeviceSetKinds::choicesCanBeGivenWhileAdding()
{
    TesselDoc doc(nullptr);
    QVariantMap data = key(1, 1, first);
    data.insert(DataKey::deviceSetRemove(), true);
    data.insert(DataKey::speakerPosition(), QStringLiteral("R"));
    QVERIFY(doc.addData(DataKind::DeviceSet, data));
    const auto record = deviceSetRecord(doc, 1, 1, first);
    QVERIFY(record && record->remove);
    QCOMPARE(record->speakerPosition, QStringLiteral("R"));
}

void TestDeviceSetKinds::sameTripleIsStoredOnce()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, true));
    QVERIFY(!addToDeviceSet(doc, 1, 1, first, false));
    QCOMPARE(listed(doc, {}), 1);
    QVERIFY(deviceSetRecord(doc, 1, 1, first)->remove);
}

void TestDeviceSetKinds::recordsDifferInEachPartOfTheTriple()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, false));
    QVERIFY(addToDeviceSet(doc, 2, 1, first, false));
    QVERIFY(addToDeviceSet(doc, 1, 2, first, false));
    QVERIFY(addToDeviceSet(doc, 1, 1, second, true));
    QCOMPARE(listed(doc, {}), 4);
    QVERIFY(!deviceSetRecord(doc, 1, 1, first)->remove);
    QVERIFY(deviceSetRecord(doc, 1, 1, second)->remove);
}

void TestDeviceSetKinds::onlyTheGivenChoicesAreChanged()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, true));
    QVERIFY(setSpeakerPosition(doc, 1, 1, first, QStringLiteral("R")));
    QVERIFY(deviceSetRecord(doc, 1, 1, first)->remove);
    QVariantMap data = key(1, 1, first);
    data.insert(DataKey::deviceSetRemove(), false);
    QVERIFY(doc.setData(DataKind::DeviceSet, data));
    QVERIFY(!deviceSetRecord(doc, 1, 1, first)->remove);
    QCOMPARE(deviceSetRecord(doc, 1, 1, first)->speakerPosition, QStringLiteral("R"));
    QVERIFY(doc.setData(DataKind::DeviceSet, key(1, 1, first)));
}

void TestDeviceSetKinds::missingRecordIsNotFound()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, QStringLiteral("fe80::a"), false));
    QVERIFY(!deviceSetRecord(doc, 1, 1, QStringLiteral("fe80::A")));
    QVERIFY(!deviceSetRecord(doc, 2, 1, QStringLiteral("fe80::a")));
    QVERIFY(!setSpeakerPosition(doc, 1, 2, QStringLiteral("fe80::a"), QStringLiteral("R")));
}

void TestDeviceSetKinds::missingKeyIsRefused_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("set number") << DataKey::deviceSetNumber();
    QTest::newRow("layout") << DataKey::sceneNumber();
    QTest::newRow("address") << DataKey::deviceIPAddress();
}

void TestDeviceSetKinds::missingKeyIsRefused()
{
    QFETCH(const QString, missing);
    TesselDoc doc(nullptr);
    // The values that missing keys would read as must not be found either.
    QVERIFY(addToDeviceSet(doc, 0, 0, QString(), false));
    QVariantMap data = key(0, 0, QString());
    data.remove(missing);
    QVERIFY(!doc.getData(DataKind::DeviceSet, data));
    QVERIFY(!doc.setData(DataKind::DeviceSet, data));
    data = key(5, 5, first);
    data.remove(missing);
    QVERIFY(!doc.addData(DataKind::DeviceSet, data));
    QCOMPARE(listed(doc, {}), 1);
}

void TestDeviceSetKinds::listIsNarrowedBySetAndLayout()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, false));
    QVERIFY(addToDeviceSet(doc, 2, 1, second, false));
    QVERIFY(addToDeviceSet(doc, 3, 2, first, false));
    QVERIFY(addToDeviceSet(doc, 3, 2, second, false));
    QCOMPARE(listed(doc, {{DataKey::sceneNumber(), 1}}), 2);
    QCOMPARE(listed(doc, {{DataKey::deviceSetNumber(), 3}}), 2);
    QCOMPARE(listed(doc, {{DataKey::deviceSetNumber(), 1}, {DataKey::sceneNumber(), 1}}), 1);
    QCOMPARE(listed(doc, {}), 4);
}

void TestDeviceSetKinds::listIsInDocumentOrderWithAllValues()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 2, 1, second, true));
    QVERIFY(addToDeviceSet(doc, 1, 1, first, false));
    QList<QVariantMap> list;
    QVERIFY(doc.getDataList(DataKind::DeviceSet, {}, list));
    QVariantMap expected = key(2, 1, second);
    expected.insert(DataKey::deviceSetRemove(), true);
    expected.insert(DataKey::speakerPosition(), QStringLiteral("L"));
    QCOMPARE(list.first(), expected);
    QCOMPARE(list.last().value(DataKey::deviceIPAddress()).toString(), first);
}

void TestDeviceSetKinds::listWithoutAMatchIsTrueWhileThereAreRecords()
{
    TesselDoc doc(nullptr);
    QCOMPARE(listed(doc, {}), -1);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, false));
    QCOMPARE(listed(doc, {{DataKey::sceneNumber(), 9}}), 0);
}

void TestDeviceSetKinds::clearedSetsCanBeFilledAgain()
{
    TesselDoc doc(nullptr);
    QVERIFY(addToDeviceSet(doc, 1, 1, first, true));
    QVERIFY(doc.clearData(DataKind::DeviceSet));
    QCOMPARE(listed(doc, {}), -1);
    QVERIFY(!deviceSetRecord(doc, 1, 1, first));
    QVERIFY(addToDeviceSet(doc, 1, 1, second, false));
    QVERIFY(addToDeviceSet(doc, 1, 1, first, false));
    QVERIFY(!deviceSetRecord(doc, 1, 1, first)->remove);
}

void TestDeviceSetKinds::firstRecordOfALayoutIsFoundWhateverItsSet()
{
    DeviceSetRecords records;
    QVERIFY(records.append({3, 1, first}));
    QVERIFY(records.append({2, 1, first}));
    QVERIFY(records.append({1, 2, first}));
    QCOMPARE(records.firstInLayout(1, first)->deviceSetNumber, 3);
    QCOMPARE(records.firstInLayout(2, first)->deviceSetNumber, 1);
    QVERIFY(records.firstInLayout(3, first) == nullptr);
    QVERIFY(records.firstInLayout(1, second) == nullptr);
    records.clear();
    QVERIFY(records.firstInLayout(1, first) == nullptr);
}

TESSEL_TEST_MAIN(TestDeviceSetKinds)
#include "tst_devicesetkinds.moc"
