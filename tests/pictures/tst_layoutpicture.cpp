#include "gridcolor.h"
#include "layoutpicture.h"
#include "roomcolor.h"
#include "testcase.h"

#include <QPainter>
#include <QTest>

class TestLayoutPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRoomIsOneAreaInItsColour();
    void combinedRoomsTakeTheColourOfTheLowest();
    void roomsBeyondTheColouredOnesLookLikeTheLastWhenCombined();
    void roomsThatPartGetTheirColoursBack();
    void numbersAreWrittenInWhite();
    void aPositionTellsItsRoom();
    void aClearedPictureIsGround();
};

namespace {

constexpr GridGeometry geometry{1, 48};

/// Three rooms of two cells, side by side.
LayoutPicture threeRooms()
{
    LayoutPicture picture(geometry);
    for (int room = 1; room <= 3; ++room) {
        picture.setRoom(room, {{room - 1, 0}, {room - 1, 1}});
    }
    return picture;
}

QImage painted(const LayoutPicture& picture, bool numbers = false)
{
    QImage image(geometry.side(), geometry.side(), QImage::Format_RGB32);
    QPainter painter(&image);
    picture.paintRooms(painter);
    if (numbers) {
        picture.paintNumbers(painter);
    }
    return image;
}

QColor colorOf(int room, const QImage& image)
{
    return image.pixelColor(geometry.cellRect({room - 1, 0}).topLeft());
}

} // namespace

void TestLayoutPicture::aRoomIsOneAreaInItsColour()
{
    const QImage image = painted(threeRooms());
    QCOMPARE(colorOf(2, image), roomColor(2, Qt::black));
    const QRect upper = geometry.cellRect({1, 0});
    QCOMPARE(image.pixelColor(upper.left(), upper.bottom() + 1), roomColor(2, Qt::black));
    QCOMPARE(image.pixelColor(upper.right() + 1, upper.top()), gridBackground);
}

void TestLayoutPicture::combinedRoomsTakeTheColourOfTheLowest()
{
    LayoutPicture picture = threeRooms();
    picture.setGroups({{}, {3, 2}});
    const QImage image = painted(picture);
    QCOMPARE(colorOf(1, image), roomColor(1, Qt::black));
    QCOMPARE(colorOf(2, image), roomColor(2, Qt::black));
    QCOMPARE(colorOf(3, image), roomColor(2, Qt::black));
}

void TestLayoutPicture::roomsBeyondTheColouredOnesLookLikeTheLastWhenCombined()
{
    LayoutPicture picture = threeRooms();
    picture.setRoom(5, {{4, 0}});
    picture.setRoom(6, {{5, 0}});
    picture.setGroups({{5, 6}});
    const QImage image = painted(picture);
    QCOMPARE(colorOf(5, image), roomColor(4, Qt::black));
    QCOMPARE(colorOf(6, image), roomColor(4, Qt::black));
}

void TestLayoutPicture::roomsThatPartGetTheirColoursBack()
{
    LayoutPicture picture = threeRooms();
    picture.setGroups({{1, 2, 3}});
    picture.setGroups({});
    QCOMPARE(colorOf(3, painted(picture)), roomColor(3, Qt::black));
}

void TestLayoutPicture::numbersAreWrittenInWhite()
{
    const LayoutPicture picture = threeRooms();
    const QRect label = picture.rooms().value(1).label;
    const auto whites = [&](const QImage& image) {
        int count = 0;
        for (int x = label.left(); x <= label.right(); ++x) {
            for (int y = label.top(); y <= label.bottom(); ++y) {
                count += image.pixelColor(x, y) == Qt::white ? 1 : 0;
            }
        }
        return count;
    };
    QCOMPARE(whites(painted(picture)), 0);
    QVERIFY(whites(painted(picture, true)) > 0);
}

void TestLayoutPicture::aPositionTellsItsRoom()
{
    const LayoutPicture picture = threeRooms();
    QCOMPARE(picture.roomAt(geometry.cellRect({2, 1}).center()), 3);
    QCOMPARE(picture.roomAt(geometry.cellRect({3, 0}).center()), 0);
}

void TestLayoutPicture::aClearedPictureIsGround()
{
    LayoutPicture picture = threeRooms();
    picture.clear();
    QCOMPARE(colorOf(1, painted(picture)), gridBackground);
    QCOMPARE(picture.grid().highestRoom(), 0);
}

TESSEL_TEST_MAIN(TestLayoutPicture)
#include "tst_layoutpicture.moc"
