#include "datakey.h"
#include "datakind.h"
#include "layoutqueries.h"
#include "roomqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

namespace {

QPixmap picture(const QColor& colour)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(colour);
    return pixmap;
}

QVariantMap layout(int number, const QString& roomGroup, const QColor& colour)
{
    return {{DataKey::sceneNumber(), number},
            {DataKey::roomGroup(), roomGroup},
            {DataKey::roomThumbnail(), picture(colour)}};
}

} // namespace

/// Rooms and the layouts made of them.
class TestLayoutKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void roomCountIsTheHighestNumber();
    void roomCellsKeepTheirOrder();
    void storedRoomIsReplacedInPlace();
    void roomWithoutNumberOrCellsIsRefused();
    void missingRoomIsNotFound();
    void clearingRoomsClearsLayoutsToo();
    void layoutReadsBack();
    void takenLayoutNumberIsRefusedAndKeepsTheFirst();
    void missingLayoutCannotBeReplaced();
    void storedLayoutIsReplaced();
    void layoutWithAMissingKeyIsRefused_data();
    void layoutWithAMissingKeyIsRefused();
    void clearingLayoutsKeepsRooms();
};

void TestLayoutKinds::roomCountIsTheHighestNumber()
{
    TesselDoc doc(nullptr);
    QVariantMap data;
    QVERIFY(doc.getData(DataKind::RoomCount, data));
    QCOMPARE(data.value(DataKey::count()).toInt(), 0);
    setRoomCells(doc, 3, {{0, 0}});
    setRoomCells(doc, 1, {{1, 0}});
    QVERIFY(doc.getData(DataKind::RoomCount, data));
    QCOMPARE(data.value(DataKey::count()).toInt(), 3);
}

void TestLayoutKinds::roomCellsKeepTheirOrder()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 2, {{5, 7}, {0, 0}, {3, 1}});
    QCOMPARE(roomCells(doc, 2), QList<QPoint>({{5, 7}, {0, 0}, {3, 1}}));
}

void TestLayoutKinds::storedRoomIsReplacedInPlace()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 1, {{0, 0}});
    setRoomCells(doc, 2, {{1, 1}});
    setRoomCells(doc, 1, {});
    QCOMPARE(roomCells(doc, 1), QList<QPoint>());
    QCOMPARE(roomCells(doc, 2), QList<QPoint>({{1, 1}}));
    QCOMPARE(roomCount(doc), 2);
}

void TestLayoutKinds::roomWithoutNumberOrCellsIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(!doc.setData(DataKind::RoomInfo, {{DataKey::roomNumber(), 1}}));
    QVERIFY(!doc.setData(DataKind::RoomInfo, {{DataKey::positionList(), QVariantList()}}));
    QCOMPARE(roomCount(doc), 0);
    setRoomCells(doc, 1, {{0, 0}});
    QVariantMap data;
    QVERIFY(!doc.getData(DataKind::RoomInfo, data));
}

void TestLayoutKinds::missingRoomIsNotFound()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 1, {{0, 0}});
    QVERIFY(!roomCells(doc, 2));
}

void TestLayoutKinds::clearingRoomsClearsLayoutsToo()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 1, {{0, 0}});
    QVERIFY(doc.addData(DataKind::Scene, layout(1, QStringLiteral("1"), Qt::red)));
    QVERIFY(doc.clearData(DataKind::Room));
    QCOMPARE(roomCount(doc), 0);
    QCOMPARE(layoutCount(doc), 0);
}

void TestLayoutKinds::layoutReadsBack()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Scene, layout(2, QStringLiteral("1+2/3"), Qt::red)));
    QCOMPARE(layoutCount(doc), 1);
    const auto stored = layoutAt(doc, 2);
    QVERIFY(stored);
    QCOMPARE(stored->roomGroup, QStringLiteral("1+2/3"));
    QCOMPARE(stored->thumbnail.toImage(), picture(Qt::red).toImage());
    QVERIFY(!layoutAt(doc, 1));
}

void TestLayoutKinds::takenLayoutNumberIsRefusedAndKeepsTheFirst()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Scene, layout(1, QStringLiteral("1+2"), Qt::red)));
    QVERIFY(!doc.addData(DataKind::Scene, layout(1, QStringLiteral("1/2"), Qt::blue)));
    QCOMPARE(layoutCount(doc), 1);
    QCOMPARE(layoutAt(doc, 1)->roomGroup, QStringLiteral("1+2"));
}

void TestLayoutKinds::missingLayoutCannotBeReplaced()
{
    TesselDoc doc(nullptr);
    QVERIFY(!doc.setData(DataKind::Scene, layout(1, QStringLiteral("1+2"), Qt::red)));
    QCOMPARE(layoutCount(doc), 0);
}

void TestLayoutKinds::storedLayoutIsReplaced()
{
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Scene, layout(1, QStringLiteral("1+2"), Qt::red)));
    QVERIFY(doc.addData(DataKind::Scene, layout(2, QStringLiteral("1/2"), Qt::green)));
    QVERIFY(doc.setData(DataKind::Scene, layout(1, QStringLiteral("2/1"), Qt::blue)));
    QCOMPARE(layoutAt(doc, 1)->roomGroup, QStringLiteral("2/1"));
    QCOMPARE(layoutAt(doc, 1)->thumbnail.toImage(), picture(Qt::blue).toImage());
    QCOMPARE(layoutAt(doc, 2)->roomGroup, QStringLiteral("1/2"));
    QCOMPARE(layoutCount(doc), 2);
}

void TestLayoutKinds::layoutWithAMissingKeyIsRefused_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("number") << DataKey::sceneNumber();
    QTest::newRow("room group") << DataKey::roomGroup();
    QTest::newRow("thumbnail") << DataKey::roomThumbnail();
}

void TestLayoutKinds::layoutWithAMissingKeyIsRefused()
{
    QFETCH(const QString, key);
    TesselDoc doc(nullptr);
    QVERIFY(doc.addData(DataKind::Scene, layout(1, QStringLiteral("1+2"), Qt::red)));
    QVariantMap changed = layout(1, QStringLiteral("1/2"), Qt::blue);
    QVariantMap added = layout(2, QStringLiteral("1/2"), Qt::blue);
    changed.remove(key);
    added.remove(key);
    QVERIFY(!doc.setData(DataKind::Scene, changed));
    QVERIFY(!doc.addData(DataKind::Scene, added));
    QCOMPARE(layoutCount(doc), 1);
    QCOMPARE(layoutAt(doc, 1)->roomGroup, QStringLiteral("1+2"));
    QVariantMap noSelector;
    QVERIFY(!doc.getData(DataKind::Scene, noSelector));
}

void TestLayoutKinds::clearingLayoutsKeepsRooms()
{
    TesselDoc doc(nullptr);
    setRoomCells(doc, 1, {{0, 0}});
    QVERIFY(doc.addData(DataKind::Scene, layout(1, QStringLiteral("1"), Qt::red)));
    QVERIFY(doc.clearData(DataKind::Scene));
    QCOMPARE(layoutCount(doc), 0);
    QCOMPARE(roomCount(doc), 1);
}

TESSEL_TEST_MAIN(TestLayoutKinds)
#include "tst_layoutkinds.moc"
