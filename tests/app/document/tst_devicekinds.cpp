#include "datakey.h"
#include "datakind.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

namespace {

QVariantMap device(const QString& address, const QString& model = QStringLiteral("PX-HB"),
                   const QString& version = QStringLiteral("2.1.0"))
{
    return {{DataKey::deviceIPAddress(), address},
            {DataKey::deviceModelName(), model},
            {DataKey::deviceLabel(), QStringLiteral("Room-A")},
            {DataKey::deviceVersion(), version},
            {DataKey::deviceMacAddress(), QStringLiteral("00:a0:de:00:00:01")},
            {DataKey::deviceSearchType(), QStringLiteral("HTTP")},
            {DataKey::devicePassword(), QStringLiteral("secret")}};
}

QVariantMap read(TesselDoc& doc, const QString& address)
{
    QVariantMap data{{DataKey::deviceIPAddress(), address}};
    return doc.getData(DataKind::Device, data) ? data : QVariantMap();
}

const QString first = QStringLiteral("10.0.0.1");
const QString second = QStringLiteral("10.0.0.2");

} // namespace

class TestDeviceKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addedDeviceReadsBack();
    void deviceWithoutAnAddressIsRefused();
    void missingTextsAreEmpty();
    void acceptanceRuleDecides_data();
    void acceptanceRuleDecides();
    void indexGoesBeforeTheAddress();
    void indexOutsideTheListIsRefused();
    void neitherIndexNorAddressFindsNothing();
    void addressIsComparedExactly();
    void repeatedAddressFindsTheFirstDevice();
    void roomIsToldOnlyWhenThereIsOne();
    void searchTypeAndPasswordAreNeverTold();
    void roomAndLabelAreChangedByAddress();
    void unknownAddressChangesNothing();
    void roomCanBeGivenWhileAdding();
    void devicesOfARoomAreListedInOrder();
    void listWithoutARoomIsRefused();
    void listOfAnEmptyRoomIsFalseAndKeepsTheCallersList();
};

void TestDeviceKinds::addedDeviceReadsBack()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    const QVariantMap data = read(doc, first);
    QCOMPARE(data.value(DataKey::deviceModelName()).toString(), QStringLiteral("PX-HB"));
    QCOMPARE(data.value(DataKey::deviceLabel()).toString(), QStringLiteral("Room-A"));
    QCOMPARE(data.value(DataKey::deviceVersion()).toString(), QStringLiteral("2.1.0"));
    QCOMPARE(data.value(DataKey::deviceIPAddress()).toString(), first);
    QCOMPARE(data.value(DataKey::deviceMacAddress()).toString(),
             QStringLiteral("00:a0:de:00:00:01"));
}

void TestDeviceKinds::deviceWithoutAnAddressIsRefused()
{
    TesselDoc doc(nullptr);
    QVariantMap data = device(first);
    data.remove(DataKey::deviceIPAddress());
    QVERIFY(!doc.addData(DataKind::Device, data));
    QVERIFY(!doc.setData(DataKind::Device, data));
    QVERIFY(doc.getData(DataKind::DeviceCount, data));
    QCOMPARE(data.value(DataKey::count()).toInt(), 0);
}

void TestDeviceKinds::missingTextsAreEmpty()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, {{DataKey::deviceIPAddress(), first},
                                           {DataKey::deviceModelName(), QStringLiteral("PX-DL")},
                                           {DataKey::deviceVersion(), QStringLiteral("2")}}));
    const QVariantMap data = read(doc, first);
    QVERIFY(data.contains(DataKey::deviceLabel()));
    QVERIFY(data.value(DataKey::deviceLabel()).toString().isEmpty());
    QVERIFY(data.value(DataKey::deviceMacAddress()).toString().isEmpty());
}

void TestDeviceKinds::acceptanceRuleDecides_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("accepted");
    const auto row = [](const char* model, const char* version, bool accepted) {
        QTest::addRow("%s %s", model, version)
            << QString::fromLatin1(model) << QString::fromLatin1(version) << accepted;
    };
    row("PX-HB", "V2.0.1", true);
    row("PX-HB", "1.9.9", false);
    row("PX-NDE", "1.9.3", true);
    row("PX-NDE", "1.9.2", false);
    row("PX-NDE", "1.8", false);
    row("PX-NDE", "2.0.0", true);
    row("PX-NDE", "2", false);
    row("LQA4-08S", "2.1", true);
    row("XY-1", "2.0", false);
    row("XY-1", "9.9.9", false);
    row("", "2.0", false);
    row("PX-HB", "", false);
}

void TestDeviceKinds::acceptanceRuleDecides()
{
    QFETCH(const QString, model);
    QFETCH(const QString, version);
    QFETCH(const bool, accepted);
    TesselDoc doc(nullptr);
    QCOMPARE(doc.addData(DataKind::Device, device(first, model, version)), accepted);
    QCOMPARE(read(doc, first).isEmpty(), !accepted);
}

void TestDeviceKinds::indexGoesBeforeTheAddress()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QVERIFY(doc.addData(DataKind::Device, device(second)));
    QVariantMap data{{DataKey::index(), 1}, {DataKey::deviceIPAddress(), first}};
    QVERIFY(doc.getData(DataKind::Device, data));
    QCOMPARE(data.value(DataKey::deviceIPAddress()).toString(), second);
    data = {{DataKey::index(), 2}, {DataKey::deviceIPAddress(), first}};
    QVERIFY(!doc.getData(DataKind::Device, data));
}

void TestDeviceKinds::indexOutsideTheListIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    for (const int index : {-1, 1, 2147483647, -2147483647 - 1}) {
        QVariantMap data{{DataKey::index(), index}};
        QVERIFY(!doc.getData(DataKind::Device, data));
        QCOMPARE(data.size(), 1);
    }
}

void TestDeviceKinds::neitherIndexNorAddressFindsNothing()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QVariantMap data;
    QVERIFY(!doc.getData(DataKind::Device, data));
}

void TestDeviceKinds::addressIsComparedExactly()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(QStringLiteral("fe80::A"))));
    QVERIFY(read(doc, QStringLiteral("fe80::a")).isEmpty());
    QVERIFY(read(doc, QStringLiteral("fe80::A ")).isEmpty());
    QVERIFY(!read(doc, QStringLiteral("fe80::A")).isEmpty());
}

void TestDeviceKinds::repeatedAddressFindsTheFirstDevice()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first, QStringLiteral("PX-HB"))));
    QVERIFY(doc.addData(DataKind::Device, device(first, QStringLiteral("PX-DL"))));
    QVERIFY(doc.setData(DataKind::Device,
                        {{DataKey::deviceIPAddress(), first}, {DataKey::roomNumber(), 2}}));
    const QVariantMap found = read(doc, first);
    QCOMPARE(found.value(DataKey::deviceModelName()).toString(), QStringLiteral("PX-HB"));
    QCOMPARE(found.value(DataKey::roomNumber()).toInt(), 2);
    QVariantMap repeated{{DataKey::index(), 1}};
    QVERIFY(doc.getData(DataKind::Device, repeated));
    QCOMPARE(repeated.value(DataKey::deviceModelName()).toString(), QStringLiteral("PX-DL"));
    QVERIFY(!repeated.contains(DataKey::roomNumber()));
}

void TestDeviceKinds::roomIsToldOnlyWhenThereIsOne()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QVERIFY(!read(doc, first).contains(DataKey::roomNumber()));
    QVERIFY(doc.setData(DataKind::Device,
                        {{DataKey::deviceIPAddress(), first}, {DataKey::roomNumber(), 4}}));
    QCOMPARE(read(doc, first).value(DataKey::roomNumber()).toInt(), 4);
    QVERIFY(doc.setData(DataKind::Device,
                        {{DataKey::deviceIPAddress(), first}, {DataKey::roomNumber(), 0}}));
    QVERIFY(!read(doc, first).contains(DataKey::roomNumber()));
}

void TestDeviceKinds::searchTypeAndPasswordAreNeverTold()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QList<QVariantMap> list{read(doc, first)};
    QVERIFY(doc.getDataList(DataKind::Device, {{DataKey::roomNumber(), 0}}, list));
    QCOMPARE(list.size(), 2);
    for (const QVariantMap& data : list) {
        QVERIFY(!data.contains(DataKey::deviceSearchType()));
        QVERIFY(!data.contains(DataKey::devicePassword()));
        QVERIFY(!data.values().contains(QStringLiteral("secret")));
    }
}

void TestDeviceKinds::roomAndLabelAreChangedByAddress()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QVERIFY(doc.addData(DataKind::Device, device(second)));
    QVERIFY(doc.setData(DataKind::Device, {{DataKey::deviceIPAddress(), second},
                                           {DataKey::deviceLabel(), QStringLiteral("Nord")},
                                           {DataKey::roomNumber(), 3}}));
    QCOMPARE(read(doc, second).value(DataKey::deviceLabel()).toString(), QStringLiteral("Nord"));
    QCOMPARE(read(doc, second).value(DataKey::roomNumber()).toInt(), 3);
    QCOMPARE(read(doc, first).value(DataKey::deviceLabel()).toString(), QStringLiteral("Room-A"));
    QVERIFY(doc.setData(DataKind::Device, {{DataKey::deviceIPAddress(), second}}));
    QCOMPARE(read(doc, second).value(DataKey::roomNumber()).toInt(), 3);
}

void TestDeviceKinds::unknownAddressChangesNothing()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QVERIFY(!doc.setData(DataKind::Device,
                         {{DataKey::deviceIPAddress(), second}, {DataKey::roomNumber(), 3}}));
    QVERIFY(!read(doc, first).contains(DataKey::roomNumber()));
}

void TestDeviceKinds::roomCanBeGivenWhileAdding()
{
    TesselDoc doc(nullptr);
    QVariantMap data = device(first);
    data.insert(DataKey::roomNumber(), 2);
    QVERIFY(doc.addData(DataKind::Device, data));
    QCOMPARE(read(doc, first).value(DataKey::roomNumber()).toInt(), 2);
}

void TestDeviceKinds::devicesOfARoomAreListedInOrder()
{
    TesselDoc doc(nullptr);
    for (int number = 1; number <= 5; ++number) {
        QVariantMap data = device(QStringLiteral("10.0.0.%1").arg(number));
        data.insert(DataKey::roomNumber(), number % 2 + 1);
        QVERIFY(doc.addData(DataKind::Device, data));
    }
    QList<QVariantMap> list;
    QVERIFY(doc.getDataList(DataKind::Device, {{DataKey::roomNumber(), 2}}, list));
    QStringList addresses;
    for (const QVariantMap& data : list) {
        addresses.append(data.value(DataKey::deviceIPAddress()).toString());
        QCOMPARE(data.value(DataKey::roomNumber()).toInt(), 2);
        QCOMPARE(data.size(), 6);
    }
    QCOMPARE(addresses,
             QStringList({first, QStringLiteral("10.0.0.3"), QStringLiteral("10.0.0.5")}));
}

void TestDeviceKinds::listWithoutARoomIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QList<QVariantMap> list;
    QVERIFY(!doc.getDataList(DataKind::Device, {}, list));
    QVERIFY(list.isEmpty());
}

void TestDeviceKinds::listOfAnEmptyRoomIsFalseAndKeepsTheCallersList()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Device, device(first)));
    QList<QVariantMap> list{{{QStringLiteral("mine"), 1}}};
    QVERIFY(!doc.getDataList(DataKind::Device, {{DataKey::roomNumber(), 1}}, list));
    QCOMPARE(list.size(), 1);
}

TESSEL_TEST_MAIN(TestDeviceKinds)
#include "tst_devicekinds.moc"
