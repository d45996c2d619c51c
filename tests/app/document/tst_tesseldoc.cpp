#include "tesseldoc.h"
#include "testcase.h"

#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QTest>

namespace {

/// Every key with a value, so that no operation fails for a missing one.
QVariantMap everyKey()
{
    return {{QStringLiteral("DataType:NicIndex=int"), 1},
            {QStringLiteral("DataType:Index=int"), 0},
            {QStringLiteral("DataType:Size=QSize"), QSize(900, 700)},
            {QStringLiteral("DataType:Count=int"), 1},
            {QStringLiteral("DataType:DeviceLabel=QString"), QStringLiteral("hub")},
            {QStringLiteral("DataType:DeviceIPAddress=QString"), QStringLiteral("10.0.0.1")},
            {QStringLiteral("DataType:DeviceMacAddress=QString"), QStringLiteral("mac")},
            {QStringLiteral("DataType:DeviceModelName=QString"), QStringLiteral("PX-HB")},
            {QStringLiteral("DataType:DeviceVersion=QString"), QStringLiteral("2.0")},
            {QStringLiteral("DataType:DeviceSearchType=QString"), QString()},
            {QStringLiteral("DataType:RoomNumber=int"), 1},
            {QStringLiteral("DataType:PositionList=QList<QPoint>"), QVariantList{QPoint(1, 2)}},
            {QStringLiteral("DataType::SceneNumber=int"), 1},
            {QStringLiteral("DataType::RoomGroup=QString"), QStringLiteral("1+2")},
            {QStringLiteral("DataType::RoomThumbnail=QPixmap"), QPixmap()},
            {QStringLiteral("DataType::DeviceSetNumber=int"), 1},
            {QStringLiteral("DataType::DeviceSetRemove=bool"), false},
            {QStringLiteral("DataType::DeviceSetSpeakerPosition=QString"), QStringLiteral("R")},
            {QStringLiteral("DataType::PresetName=QString"), QStringLiteral("both")}};
}

/// A document with one record of each sort, all selected by everyKey().
void fill(TesselDoc& doc)
{
    QVERIFY(doc.addData(5, everyKey()));
    QVERIFY(doc.setData(8, everyKey()));
    QVERIFY(doc.addData(9, everyKey()));
    QVERIFY(doc.addData(11, everyKey()));
    QVERIFY(doc.addData(12, everyKey()));
}

} // namespace

class TestTesselDoc : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindDoesItsOperationsAndNoOthers_data();
    void everyKindDoesItsOperationsAndNoOthers();
    void freshDocumentIsEmpty();
    void singleValuesAreStored();
    void singleValueWithoutItsKeyIsRefused_data();
    void singleValueWithoutItsKeyIsRefused();
    void resultsAreAddedToTheCallersMap();
};

void TestTesselDoc::everyKindDoesItsOperationsAndNoOthers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("operations"); // s = set, g = get, c = clear, a = add, l = list
    const auto row = [](int kind, const char* operations) {
        QTest::addRow("kind %d", kind) << kind << QString::fromLatin1(operations);
    };
    row(-1, "");
    row(0, "");
    row(1, "sg");
    row(2, "sg");
    row(3, "sg");
    row(4, "g");
    row(5, "sgal");
    row(6, "c");
    row(7, "g");
    row(8, "sg");
    row(9, "sgca");
    row(10, "g");
    row(11, "sgcal");
    row(12, "gcal");
    row(13, "g");
    row(14, "g");
    row(15, "g");
    row(16, "");
    row(17, "");
    row(2147483647, "");
    row(-2147483647 - 1, "");
}

void TestTesselDoc::everyKindDoesItsOperationsAndNoOthers()
{
    QFETCH(const int, kind);
    QFETCH(const QString, operations);
    TesselDoc doc(nullptr);
    fill(doc);
    QVariantMap data = everyKey();
    QList<QVariantMap> list;
    QCOMPARE(doc.setData(kind, everyKey()), operations.contains(QLatin1Char('s')));
    QCOMPARE(doc.getData(kind, data), operations.contains(QLatin1Char('g')));
    QCOMPARE(doc.getDataList(kind, everyKey(), list), operations.contains(QLatin1Char('l')));
    QCOMPARE(list.isEmpty(), !operations.contains(QLatin1Char('l')));
    QCOMPARE(doc.clearData(kind), operations.contains(QLatin1Char('c')));
    // A kind that can be cleared is empty now, so adding the same record is no repetition.
    QCOMPARE(doc.addData(kind, everyKey()), operations.contains(QLatin1Char('a')));
    QCOMPARE(doc.doAction(kind == 16 ? 15 : kind, everyKey()), false);
}

void TestTesselDoc::freshDocumentIsEmpty()
{
    TesselDoc doc(nullptr);
    QVariantMap data;
    for (const int kind : {1, 2, 3, 4, 7, 10}) {
        QVERIFY(doc.getData(kind, data));
    }
    QCOMPARE(data.value(QStringLiteral("DataType:NicIndex=int")).toInt(), 0);
    QCOMPARE(data.value(QStringLiteral("DataType:Index=int")).toInt(), 0);
    QCOMPARE(data.value(QStringLiteral("DataType:Size=QSize")).toSize(), QSize());
    QCOMPARE(data.value(QStringLiteral("DataType:Count=int")).toInt(), 0);
    QList<QVariantMap> list;
    QVERIFY(!doc.getDataList(5, {{QStringLiteral("DataType:RoomNumber=int"), 0}}, list));
    QVERIFY(!doc.getDataList(11, {}, list));
    QVERIFY(!doc.getDataList(12, {}, list));
    QVERIFY(list.isEmpty());
}

void TestTesselDoc::singleValuesAreStored()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.setData(1, {{QStringLiteral("DataType:NicIndex=int"), 3}}));
    QVERIFY(doc.setData(2, {{QStringLiteral("DataType:Index=int"), 5}}));
    QVERIFY(doc.setData(3, {{QStringLiteral("DataType:Size=QSize"), QSize(1000, 900)}}));
    QVariantMap data;
    QVERIFY(doc.getData(1, data) && doc.getData(2, data) && doc.getData(3, data));
    QCOMPARE(data.value(QStringLiteral("DataType:NicIndex=int")).toInt(), 3);
    QCOMPARE(data.value(QStringLiteral("DataType:Index=int")).toInt(), 5);
    QCOMPARE(data.value(QStringLiteral("DataType:Size=QSize")).toSize(), QSize(1000, 900));
}

void TestTesselDoc::singleValueWithoutItsKeyIsRefused_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("key");
    QTest::newRow("interface") << 1 << QStringLiteral("DataType:NicIndex=int");
    QTest::newRow("page") << 2 << QStringLiteral("DataType:Index=int");
    QTest::newRow("window size") << 3 << QStringLiteral("DataType:Size=QSize");
}

void TestTesselDoc::singleValueWithoutItsKeyIsRefused()
{
    QFETCH(const int, kind);
    QFETCH(const QString, key);
    TesselDoc doc(nullptr);
    QVERIFY(doc.setData(kind, everyKey()));
    QVariantMap others = everyKey();
    others.insert(QStringLiteral("DataType:NicIndex=int"), 9);
    others.insert(QStringLiteral("DataType:Index=int"), 9);
    others.insert(QStringLiteral("DataType:Size=QSize"), QSize(9, 9));
    others.remove(key);
    QVERIFY(!doc.setData(kind, others));
    QVariantMap data;
    QVERIFY(doc.getData(kind, data));
    QCOMPARE(data.value(key), everyKey().value(key));
}

void TestTesselDoc::resultsAreAddedToTheCallersMap()
{
    TesselDoc doc(nullptr);
    QVariantMap data{{QStringLiteral("mine"), 1}, {QStringLiteral("DataType:Count=int"), 99}};
    QVERIFY(doc.getData(4, data));
    QCOMPARE(data.value(QStringLiteral("mine")).toInt(), 1);
    QCOMPARE(data.value(QStringLiteral("DataType:Count=int")).toInt(), 0);
}

TESSEL_TEST_MAIN(TestTesselDoc)
#include "tst_tesseldoc.moc"
