#include "gridcolor.h"
#include "roomcolor.h"
#include "roomgrid.h"
#include "roompicture.h"
#include "testcase.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTest>

class TestRoomPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreColouredNumberedAndLined();
    void aPartIsPaintedAsTheWholeHasIt();
    void numbersFitIntoLowCells();
};

namespace {

constexpr GridGeometry geometry{2, 30};

RoomGrid twoRooms()
{
    RoomGrid grid;
    grid.set({0, 0}, 1);
    grid.set({1, 0}, 2);
    grid.set({7, 7}, 2);
    return grid;
}

QImage painted(const QRect& area)
{
    QImage image(geometry.side(), geometry.side(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    RoomPicture(geometry).paint(painter, twoRooms(), area);
    return image;
}

} // namespace

void TestRoomPicture::cellsAreColouredNumberedAndLined()
{
    const QImage image = painted({0, 0, geometry.side(), geometry.side()});
    const QRect cell = geometry.cellRect({1, 0});
    QCOMPARE(image.pixelColor(cell.topLeft()), roomColor(2, Qt::black));
    QCOMPARE(image.pixelColor(cell.left() - 1, cell.center().y()), QColor(Qt::black));
    QCOMPARE(image.pixelColor(geometry.cellRect({4, 4}).center()), gridBackground);
    const QImage number = image.copy(cell);
    bool written = false;
    for (int x = 0; x < number.width(); ++x) {
        for (int y = 0; y < number.height(); ++y) {
            written = written || number.pixelColor(x, y) == Qt::white;
        }
    }
    QVERIFY(written);
}

void TestRoomPicture::aPartIsPaintedAsTheWholeHasIt()
{
    const QRect cell = geometry.cellRect({7, 7});
    const QImage part = painted(cell);
    QCOMPARE(part.copy(cell), painted({0, 0, geometry.side(), geometry.side()}).copy(cell));
    QCOMPARE(part.pixelColor(geometry.cellRect({0, 0}).center()), QColor(Qt::magenta));
}

void TestRoomPicture::numbersFitIntoLowCells()
{
    const RoomPicture low(GridGeometry{1, 6});
    QVERIFY(QFontMetrics(low.fittingFont(QFont())).height() <= 8);
    QCOMPARE(RoomPicture(geometry).fittingFont(QFont()), QFont());
}

TESSEL_TEST_MAIN(TestRoomPicture)
#include "tst_roompicture.moc"
