#include "gridgeometry.h"
#include "testcase.h"

#include <QTest>

class TestGridGeometry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theGridIsASquareOfNineGapsAndEightCells();
    void cellsFollowEachOtherByOnePitch();
    void everyPixelOfACellHitsIt();
    void gapLinesAndTheFarEdgeAreNeverHits_data();
    void gapLinesAndTheFarEdgeAreNeverHits();
    void aGridWithoutSizeHasNoCells();
};

namespace {

constexpr GridGeometry geometry{2, 48};

} // namespace

void TestGridGeometry::theGridIsASquareOfNineGapsAndEightCells()
{
    QCOMPARE(geometry.side(), 402);
    QCOMPARE((GridGeometry{1, 48}.side()), 393);
}

void TestGridGeometry::cellsFollowEachOtherByOnePitch()
{
    QCOMPARE(geometry.cellRect({0, 0}), QRect(2, 2, 48, 48));
    QCOMPARE(geometry.cellRect({1, 7}), QRect(52, 352, 48, 48));
}

void TestGridGeometry::everyPixelOfACellHitsIt()
{
    const QRect cell = geometry.cellRect({3, 5});
    QCOMPARE(geometry.cellAt(cell.topLeft()), QPoint(3, 5));
    QCOMPARE(geometry.cellAt(cell.bottomRight()), QPoint(3, 5));
    QCOMPARE(geometry.cellAt(geometry.cellRect({7, 7}).bottomRight()), QPoint(7, 7));
}

void TestGridGeometry::gapLinesAndTheFarEdgeAreNeverHits_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::newRow("top left edge") << QPoint(0, 0);
    QTest::newRow("left edge") << QPoint(1, 20);
    QTest::newRow("first gap, x") << QPoint(50, 20);
    QTest::newRow("first gap, x, last pixel") << QPoint(51, 20);
    QTest::newRow("first gap, y") << QPoint(20, 50);
    QTest::newRow("eight pitches, x") << QPoint(400, 20);
    QTest::newRow("eight pitches, y") << QPoint(20, 400);
    QTest::newRow("beyond the last gap") << QPoint(402, 20);
    QTest::newRow("where a ninth cell would be") << QPoint(420, 20);
    QTest::newRow("left of the widget") << QPoint(-10, 20);
    QTest::newRow("one pitch left of it") << QPoint(-50, 20);
    QTest::newRow("above the widget") << QPoint(20, -1);
}

void TestGridGeometry::gapLinesAndTheFarEdgeAreNeverHits()
{
    QFETCH(const QPoint, position);
    QCOMPARE(geometry.cellAt(position), std::nullopt);
}

void TestGridGeometry::aGridWithoutSizeHasNoCells()
{
    QCOMPARE((GridGeometry{0, 0}.cellAt({0, 0})), std::nullopt);
    // Without gaps the far edge belongs to no cell either.
    QCOMPARE((GridGeometry{0, 10}.cellAt({80, 5})), std::nullopt);
    QCOMPARE((GridGeometry{0, 10}.cellAt({-10, 5})), std::nullopt);
}

TESSEL_TEST_MAIN(TestGridGeometry)
#include "tst_gridgeometry.moc"
