#include "gridcolor.h"
#include "tesselfixture.h"
#include "testcase.h"

class TestTessel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheFixedSizeOfItsGrid();
    void anEmptyGridShowsNothing();
    void aLongBorderHasOneBoxAtItsFirstCell();
    void theBoxOfAHorizontalBorderLiesOnIt();
    void aCellsRightBorderComesBeforeItsLowerOne();
    void everyTouchingPairHasABox();
    void checkingABoxCombinesItsRooms();
    void uncheckingTheOnlyLinkSplitsTheRoomsAgain();
    void linksInAChainAreOneRoom();
    void aForeignSenderChangesNothing();
    void newBoxesAreUncheckedAndLinksStay();
    void clearAllForgetsEverything();
    void aRoomIsOneSolidShape();
    void aRoomInPiecesHasOneRegionAndOneLabel();
    void theLabelLiesInTheWidePart();
    void roomsAreNumberedAndMarked();
    void aRoomAboveFourIsWhite();
    void cellsOffTheGridAreLeftOut();
    void theThumbnailShowsRoomsOnly();
};

void TestTessel::hasTheFixedSizeOfItsGrid()
{
    const Picker picker({});
    QCOMPARE(picker.size(), QSize(393, 393));
    QCOMPARE(picker.minimumSize(), picker.maximumSize());
}

void TestTessel::anEmptyGridShowsNothing()
{
    Picker picker({});
    QCOMPARE(picker.boxes().size(), 0);
    QCOMPARE(picker.maxRoomNumber(), 0);
    QCOMPARE(picker.roomGroupText(), QString());
    QCOMPARE(picker.combinedGroups(), QList<QList<int>>());
    QCOMPARE(picker.rightClick({50, 50}), nullptr);
    const QImage image = picker.grab().toImage();
    QCOMPARE(countOf(image, image.rect(), QColor(0x34, 0x34, 0x34)), 393 * 393);
}

void TestTessel::aLongBorderHasOneBoxAtItsFirstCell()
{
    const Picker picker({block(0, 2, 3, 6), block(3, 1, 3, 6)});
    QCOMPARE(picker.boxes().size(), 1);
    // The first row in which they meet is row 2, between columns 2 and 3.
    QCOMPARE(picker.boxes().first()->pos(), QPoint(3 * 49 - 7, 2 * 49 + 16));
    QVERIFY(picker.boxes().first()->isVisible());
}

void TestTessel::theBoxOfAHorizontalBorderLiesOnIt()
{
    const Picker picker({block(1, 0, 4, 3), block(0, 3, 4, 3)});
    QCOMPARE(picker.boxes().size(), 1);
    QCOMPARE(picker.boxes().first()->pos(), QPoint(1 * 49 + 16, 3 * 49 - 7));
}

void TestTessel::aCellsRightBorderComesBeforeItsLowerOne()
{
    // Cell (0, 0) meets room 2 to its right and below.
    const Picker picker({{{0, 0}}, {{1, 0}, {1, 1}, {0, 1}}});
    QCOMPARE(picker.boxes().size(), 1);
    QCOMPARE(picker.boxes().first()->pos(), QPoint(49 - 7, 16));
}

void TestTessel::everyTouchingPairHasABox()
{
    const Picker picker(fourCorners());
    QCOMPARE(picker.boxes().size(), 4);
    QVERIFY(picker.box(1, 2));
    QVERIFY(picker.box(1, 3));
    QVERIFY(picker.box(2, 4));
    QVERIFY(picker.box(3, 4));
    // Corners that meet are no border.
    QVERIFY(!picker.box(1, 4));
    QVERIFY(!picker.box(2, 3));
}

void TestTessel::checkingABoxCombinesItsRooms()
{
    Picker picker(fourCorners());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2/3/4"));
    picker.clickBox(2, 4);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2+4/3"));
    QCOMPARE(picker.colorAt({3, 3}), roomOwn(2));
    QCOMPARE(picker.colorAt({0, 3}), roomOwn(3));
    picker.clickBox(1, 3);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+3/2+4"));
    QCOMPARE(picker.combinedGroups().size(), 2);
}

void TestTessel::uncheckingTheOnlyLinkSplitsTheRoomsAgain()
{
    Picker picker(fourCorners());
    picker.clickBox(1, 2);
    QCOMPARE(picker.colorAt({2, 0}), roomOwn(1));
    picker.clickBox(1, 2);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2/3/4"));
    QCOMPARE(picker.colorAt({0, 0}), roomOwn(1));
    QCOMPARE(picker.colorAt({2, 0}), roomOwn(2));
}

void TestTessel::linksInAChainAreOneRoom()
{
    Picker picker(inARow(3));
    picker.clickBox(1, 2);
    picker.clickBox(2, 3);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+2+3"));
    for (const int column : {0, 2, 4}) {
        QCOMPARE(picker.colorAt({column, 3}), QColor(0xB0, 0x68, 0x00));
    }
}

void TestTessel::aForeignSenderChangesNothing()
{
    Picker picker(fourCorners());
    QAction action;
    action.setCheckable(true);
    connect(&action, SIGNAL(toggled(bool)), &picker, SLOT(menuToggled(bool)));
    connect(&action, SIGNAL(toggled(bool)), &picker, SLOT(buttonClicked(bool)));
    for (const char* data : {"", "1", "1,2,3"}) {
        action.setData(QString::fromLatin1(data));
        action.toggle();
    }
    TesselButton stranger;
    connect(&stranger, SIGNAL(clicked(bool)), &picker, SLOT(buttonClicked(bool)));
    connect(&stranger, SIGNAL(clicked(bool)), &picker, SLOT(menuToggled(bool)));
    QTest::mouseClick(&stranger, Qt::LeftButton);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2/3/4"));
}

void TestTessel::newBoxesAreUncheckedAndLinksStay()
{
    Picker picker(fourCorners());
    picker.clickBox(1, 2);
    picker.createLinkButtons();
    QCOMPARE(picker.boxes().size(), 4);
    QVERIFY(!picker.box(1, 2)->isChecked());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+2/3/4"));
}

void TestTessel::clearAllForgetsEverything()
{
    Picker picker(fourCorners());
    picker.clickBox(1, 2);
    picker.clearAll();
    QCOMPARE(picker.boxes().size(), 0);
    QCOMPARE(picker.maxRoomNumber(), 0);
    picker.fill(inARow(2));
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2"));
    QCOMPARE(picker.colorAt({0, 0}), gridBackground);
}

void TestTessel::aRoomIsOneSolidShape()
{
    const Picker picker({block(0, 0, 2, 2), {{2, 0}, {2, 1}, {3, 1}}});
    const QImage image = picker.renderThumbnail().toImage();
    // The crossing of the gaps inside room 1.
    QCOMPARE(image.pixelColor(49, 49), roomOwn(1));
    QCOMPARE(image.pixelColor(49, 10), roomOwn(1));
    QCOMPARE(image.pixelColor(10, 49), roomOwn(1));
    // The gap between two rooms, around them, and where three cells of a room meet.
    QCOMPARE(image.pixelColor(98, 60), gridBackground);
    QCOMPARE(image.pixelColor(0, 10), gridBackground);
    QCOMPARE(image.pixelColor(147, 49), gridBackground);
    QCOMPARE(image.pixelColor(110, 49), roomOwn(2));
}

void TestTessel::aRoomInPiecesHasOneRegionAndOneLabel()
{
    Picker picker({block(0, 0, 3, 1) + block(6, 6, 1, 1), block(0, 7, 1, 1)});
    QCOMPARE(picker.colorAt({6, 6}), roomOwn(1));
    const QImage image = picker.grab().toImage();
    QVERIFY(countOf(image, QRect(1, 1, 146, 48), Qt::white) > 20);
    QCOMPARE(countOf(image, grid.cellRect({6, 6}), Qt::white), 0);
    // The part without the label belongs to the room all the same.
    QVERIFY(picker.rightClick(grid.cellRect({6, 6}).center()));
    QCOMPARE(picker.entries(), QStringList({QStringLiteral("Room 1 + 2")}));
    picker.closeMenus();
}

void TestTessel::theLabelLiesInTheWidePart()
{
    // A wide row of three cells above a tall column: the column is larger but narrower.
    Picker picker({block(0, 0, 3, 1) + block(0, 1, 1, 7)});
    const QImage image = picker.grab().toImage();
    QVERIFY(countOf(image, QRect(1, 1, 146, 48), Qt::white) > 20);
    QCOMPARE(countOf(image, QRect(1, 60, 48, 300), Qt::white), 0);
}

void TestTessel::roomsAreNumberedAndMarked()
{
    Picker picker({block(0, 0, 2, 1)});
    const QImage image = picker.grab().toImage();
    const QPoint center = QRect(1, 1, 97, 48).center();
    // The mark is a triangle that points down: full at its top, a point at its bottom.
    QCOMPARE(countOf(image, QRect(center + QPoint(6, 0), QSize(9, 1)), Qt::white), 9);
    QCOMPARE(countOf(image, QRect(center + QPoint(6, 4), QSize(9, 1)), Qt::white), 1);
    QCOMPARE(image.pixelColor(center + QPoint(10, 4)), QColor(Qt::white));
    // The number beside it; a thin font has no point of it wholly white.
    const QRect number(center - QPoint(5, 8), QSize(10, 16));
    QVERIFY(countOf(image, number, image.pixelColor(2, 2)) < number.width() * number.height() - 3);
}

void TestTessel::aRoomAboveFourIsWhite()
{
    Picker picker({});
    picker.setRoom(5, {{0, 0}});
    QCOMPARE(picker.colorAt({0, 0}), QColor(Qt::white));
    QCOMPARE(picker.maxRoomNumber(), 5);
}

void TestTessel::cellsOffTheGridAreLeftOut()
{
    Picker picker({});
    picker.setRoom(1, {{-1, 0}, {8, 8}, {0, 100}});
    picker.createLinkButtons();
    QCOMPARE(picker.maxRoomNumber(), 0);
    QCOMPARE(picker.rightClick({3, 3}), nullptr);
}

void TestTessel::theThumbnailShowsRoomsOnly()
{
    Picker picker(fourCorners());
    picker.clickBox(1, 2);
    const QPixmap thumbnail = picker.renderThumbnail();
    QCOMPARE(thumbnail.size(), picker.size());
    const QImage image = thumbnail.toImage();
    // Two cells and the gap between them, twice in one colour; nothing is drawn upon them.
    QCOMPARE(countOf(image, QRect(1, 1, 97, 97), roomOwn(1)), 97 * 97);
    QCOMPARE(countOf(image, QRect(99, 1, 97, 97), roomOwn(1)), 97 * 97);
    QCOMPARE(countOf(image, QRect(1, 99, 97, 97), roomOwn(3)), 97 * 97);
    QCOMPARE(countOf(image, QRect(0, 197, 393, 196), gridBackground), 393 * 196);
}

TESSEL_TEST_MAIN(TestTessel)
#include "tst_tessel.moc"
