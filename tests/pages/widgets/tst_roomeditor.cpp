#include "roomcolor.h"
#include "roomeditorfixture.h"
#include "testcase.h"

class TestRoomEditor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheFixedSizeOfItsGrid();
    void startsEmptyAndUnmodified();
    void aClickOnAnEmptyCellMakesARoom();
    void aClickOnARoomRemovesAllOfIt();
    void aStrokeGrowsTheRoomItBeganIn();
    void aStrokeFromAnEmptyCellBeginsANewRoom();
    void aStrokeThatJumpsPaintsOnlyCellsBesideItsRoom();
    void aStrokeNeverTouchesRoomsItCrosses();
    void theFourthRoomIsTheLast();
    void removingARoomMovesTheHigherOnesDown();
    void pressAndReleaseAtOnePixelAfterAMoveRemovesTheNewRoom();
    void gapLinesAreNeverHits_data();
    void gapLinesAreNeverHits();
    void aReleaseOnAGapLineLeavesTheGestureOpen();
    void aPressTakesOverFromAnOpenGesture();
    void theFirstCellOfAStrokeIsWrittenWhateverItHeld();
    void aRoomWhoseLastCellIsOverwrittenLeavesNoHole();
    void aDoubleClickIsTwoClicks();
    void anyMouseButtonDraws();
    void anEditThatKeepsTheCountIsNotReported();
    void setRoomReportsTheCountAndCountsAsUnmodified();
    void aDrawingInPiecesLoadsAndPaints();
    void cellsAreListedColumnByColumn();
    void cellsOffTheGridAreLeftOut();
    void clearReportsZeroAndKeepsModified();
    void clearedEditorIgnoresTheRestOfTheStroke();
    void readOnlyIgnoresMouseAndKeyboard();
    void paintsGroundLinesAndRooms();
    void everyCellCarriesItsNumber();
    void unknownRoomsArePaintedWhite();
    void paintsTheSameInPiecesAsInOneGo();
};

namespace {

int whitePixels(const QImage& image, const QRect& rect)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += image.pixelColor(x, y).lightness() > 200 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

void TestRoomEditor::hasTheFixedSizeOfItsGrid()
{
    const Editor editor;
    QCOMPARE(editor.size(), QSize(402, 402));
    QCOMPARE(editor.minimumSize(), editor.maximumSize());
}

void TestRoomEditor::startsEmptyAndUnmodified()
{
    const Editor editor;
    QCOMPARE(editor.roomCount(), 0);
    QVERIFY(!editor.isModified());
    QCOMPARE(editor.cellsOf(1), Cells());
}

void TestRoomEditor::aClickOnAnEmptyCellMakesARoom()
{
    Editor editor;
    editor.clickAt({3, 4});
    editor.clickAt({0, 7});
    QCOMPARE(editor.cellsOf(1), Cells({{3, 4}}));
    QCOMPARE(editor.cellsOf(2), Cells({{0, 7}}));
    QCOMPARE(values(editor.counts), QList<int>({1, 2}));
    QVERIFY(editor.isModified());
}

void TestRoomEditor::aClickOnARoomRemovesAllOfIt()
{
    Editor editor;
    editor.stroke({{0, 0}, {1, 0}, {2, 0}});
    editor.clickAt({1, 0});
    QCOMPARE(editor.roomCount(), 0);
    QCOMPARE(values(editor.counts), QList<int>({1, 0}));
}

void TestRoomEditor::aStrokeGrowsTheRoomItBeganIn()
{
    Editor editor;
    editor.clickAt({0, 0});
    editor.clickAt({5, 5});
    editor.stroke({{0, 0}, {0, 1}, {1, 1}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {0, 1}, {1, 1}}));
    QCOMPARE(editor.cellsOf(2), Cells({{5, 5}}));
}

void TestRoomEditor::aStrokeFromAnEmptyCellBeginsANewRoom()
{
    Editor editor;
    editor.clickAt({7, 7});
    editor.stroke({{2, 2}, {2, 3}});
    QCOMPARE(editor.cellsOf(2), Cells({{2, 2}, {2, 3}}));
    QCOMPARE(values(editor.counts), QList<int>({1, 2}));
}

void TestRoomEditor::aStrokeThatJumpsPaintsOnlyCellsBesideItsRoom()
{
    Editor editor;
    editor.stroke({{0, 0}, {2, 0}, {1, 1}, {7, 7}, {1, 0}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}}));
}

void TestRoomEditor::aStrokeNeverTouchesRoomsItCrosses()
{
    Editor editor;
    editor.stroke({{0, 0}, {1, 0}});
    editor.stroke({{2, 0}, {2, 1}});
    // From room 1 across room 2 into empty cells beyond it: those do not touch room 1 ...
    editor.stroke({{1, 0}, {2, 0}, {3, 0}, {4, 0}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{2, 0}, {2, 1}}));
    // ... and these do.
    editor.stroke({{1, 0}, {2, 1}, {1, 1}, {1, 2}, {2, 2}, {3, 2}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}, {1, 1}, {1, 2}, {2, 2}, {3, 2}}));
    QCOMPARE(editor.cellsOf(2), Cells({{2, 0}, {2, 1}}));
}

void TestRoomEditor::theFourthRoomIsTheLast()
{
    Editor editor;
    for (int room = 0; room < 4; ++room) {
        editor.clickAt({2 * room, 0});
    }
    editor.clearModified();
    editor.counts.clear();
    editor.stroke({{3, 3}, {3, 4}, {4, 4}});
    editor.clickAt({5, 5});
    QCOMPARE(editor.roomCount(), 4);
    QCOMPARE(editor.cellsOf(0).size(), 60);
    QVERIFY(!editor.isModified());
    QCOMPARE(editor.counts.size(), 0);
    // The rooms that exist still grow.
    editor.stroke({{6, 0}, {6, 1}});
    QCOMPARE(editor.cellsOf(4), Cells({{6, 0}, {6, 1}}));
}

void TestRoomEditor::removingARoomMovesTheHigherOnesDown()
{
    Editor editor;
    editor.clickAt({0, 0});
    editor.clickAt({2, 0});
    editor.stroke({{4, 0}, {5, 0}});
    editor.counts.clear();
    editor.clickAt({2, 0});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{4, 0}, {5, 0}}));
    QCOMPARE(editor.cellsOf(3), Cells());
    QCOMPARE(values(editor.counts), QList<int>({2}));
    QCOMPARE(editor.pixel(grid.cellRect({4, 0}).topLeft()), roomColor(2, Qt::white));
    QCOMPARE(editor.pixel(grid.cellRect({2, 0}).topLeft()), QColor(0x34, 0x34, 0x34));
}

void TestRoomEditor::pressAndReleaseAtOnePixelAfterAMoveRemovesTheNewRoom()
{
    Editor editor;
    editor.pressAt({3, 3});
    editor.moveToPosition(Editor::center({3, 3}) + QPoint(3, 0));
    QCOMPARE(editor.cellsOf(1), Cells({{3, 3}}));
    editor.moveTo({3, 3});
    editor.releaseAt({3, 3});
    QCOMPARE(editor.roomCount(), 0);
    QCOMPARE(values(editor.counts), QList<int>({1, 0}));
    QVERIFY(editor.isModified());
}

void TestRoomEditor::gapLinesAreNeverHits_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::newRow("outer edge") << QPoint(1, 1);
    QTest::newRow("between columns") << QPoint(50, 20);
    QTest::newRow("between columns, second pixel") << QPoint(51, 20);
    QTest::newRow("between rows") << QPoint(20, 100);
    QTest::newRow("eight pitches") << QPoint(400, 20);
    QTest::newRow("eight pitches, both") << QPoint(400, 400);
}

void TestRoomEditor::gapLinesAreNeverHits()
{
    QFETCH(const QPoint, position);
    Editor editor;
    QTest::mouseClick(&editor, Qt::LeftButton, {}, position);
    QCOMPARE(editor.roomCount(), 0);
    QVERIFY(!editor.isModified());
    editor.pressAt({0, 0});
    editor.moveToPosition(position);
    QCOMPARE(editor.roomCount(), 0);
}

void TestRoomEditor::aReleaseOnAGapLineLeavesTheGestureOpen()
{
    Editor editor;
    editor.stroke({{0, 0}, {1, 0}});
    editor.pressAt({1, 0});
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, {100, 20});
    // The room is still being drawn: the next move is again a stroke's first.
    editor.moveTo({5, 5});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}, {5, 5}}));
}

void TestRoomEditor::aPressTakesOverFromAnOpenGesture()
{
    Editor editor;
    editor.clickAt({0, 0});
    editor.pressAt({0, 0});
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, {100, 20});
    editor.stroke({{0, 7}, {1, 7}});
    editor.moveTo({2, 7});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{0, 7}, {1, 7}}));
}

void TestRoomEditor::theFirstCellOfAStrokeIsWrittenWhateverItHeld()
{
    Editor editor;
    editor.stroke({{0, 0}, {1, 0}});
    editor.stroke({{3, 0}, {4, 0}});
    editor.pressAt({0, 0});
    editor.moveTo({3, 0});
    editor.releaseAt({3, 0});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}, {3, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{4, 0}}));
}

void TestRoomEditor::aRoomWhoseLastCellIsOverwrittenLeavesNoHole()
{
    Editor editor;
    editor.clickAt({0, 0});
    editor.clickAt({2, 0});
    editor.clickAt({4, 0});
    editor.counts.clear();
    // A new room's first cell lands on the only cell of room 1: rooms 2 and 3 move down, and so
    // does the new room, which goes on growing under its new number.
    editor.pressAt({0, 1});
    editor.moveTo({0, 0});
    QCOMPARE(editor.cellsOf(1), Cells({{2, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{4, 0}}));
    QCOMPARE(editor.cellsOf(3), Cells({{0, 0}}));
    editor.moveTo({0, 1});
    editor.releaseAt({0, 2});
    QCOMPARE(editor.cellsOf(3), Cells({{0, 0}, {0, 1}}));
    QCOMPARE(editor.counts.size(), 0);

    // Room 1 takes the only cell of room 2.
    editor.pressAt({2, 0});
    editor.moveTo({4, 0});
    editor.releaseAt({4, 0});
    QCOMPARE(editor.cellsOf(1), Cells({{2, 0}, {4, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{0, 0}, {0, 1}}));
    QCOMPARE(editor.roomCount(), 2);
    QCOMPARE(values(editor.counts), QList<int>({2}));
}

void TestRoomEditor::aDoubleClickIsTwoClicks()
{
    Editor editor;
    editor.clickAt({1, 1});
    QTest::mouseDClick(&editor, Qt::LeftButton, {}, Editor::center({1, 1}));
    editor.releaseAt({1, 1});
    QCOMPARE(editor.roomCount(), 0);
    QCOMPARE(values(editor.counts), QList<int>({1, 0}));
}

void TestRoomEditor::anyMouseButtonDraws()
{
    Editor editor;
    QTest::mouseClick(&editor, Qt::RightButton, {}, Editor::center({1, 1}));
    QTest::mouseClick(&editor, Qt::MiddleButton, {}, Editor::center({2, 2}));
    QCOMPARE(editor.roomCount(), 2);
}

void TestRoomEditor::anEditThatKeepsTheCountIsNotReported()
{
    Editor editor;
    editor.clickAt({0, 0});
    editor.counts.clear();
    editor.stroke({{0, 0}, {0, 1}, {0, 2}});
    QCOMPARE(editor.cellsOf(1).size(), 3);
    QCOMPARE(editor.counts.size(), 0);
}

void TestRoomEditor::setRoomReportsTheCountAndCountsAsUnmodified()
{
    Editor editor;
    editor.clickAt({7, 7});
    editor.clear();
    editor.counts.clear();
    editor.setRoom(1, {{0, 0}});
    editor.setRoom(2, {{1, 0}});
    editor.setRoom(2, {{1, 1}});
    QCOMPARE(values(editor.counts), QList<int>({1, 2, 2}));
    QCOMPARE(editor.cellsOf(2), Cells({{1, 0}, {1, 1}}));
    QVERIFY(!editor.isModified());
}

void TestRoomEditor::aDrawingInPiecesLoadsAndPaints()
{
    Editor editor;
    editor.setRoom(1, {{0, 0}, {7, 7}, {3, 4}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {3, 4}, {7, 7}}));
    for (const QPoint cell : editor.cellsOf(1)) {
        QCOMPARE(editor.pixel(grid.cellRect(cell).topLeft()), roomColor(1, Qt::white));
    }
}

void TestRoomEditor::cellsAreListedColumnByColumn()
{
    Editor editor;
    editor.setRoom(1, {{1, 1}, {0, 1}, {1, 0}, {0, 0}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {0, 1}, {1, 0}, {1, 1}}));
}

void TestRoomEditor::cellsOffTheGridAreLeftOut()
{
    Editor editor;
    editor.setRoom(1, {{-1, 0}, {8, 0}, {0, 8}, {0, -1}, {1000000, 1000000}, {0, 0}});
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}}));
}

void TestRoomEditor::clearReportsZeroAndKeepsModified()
{
    Editor editor;
    editor.clear();
    QVERIFY(!editor.isModified());
    editor.clickAt({0, 0});
    editor.clear();
    QVERIFY(editor.isModified());
    QCOMPARE(values(editor.counts), QList<int>({0, 1, 0}));
    QCOMPARE(editor.roomCount(), 0);
    editor.clearModified();
    QVERIFY(!editor.isModified());
}

void TestRoomEditor::clearedEditorIgnoresTheRestOfTheStroke()
{
    Editor editor;
    editor.pressAt({0, 0});
    editor.moveTo({0, 1});
    editor.clear();
    editor.moveTo({0, 2});
    editor.releaseAt({0, 2});
    QCOMPARE(editor.roomCount(), 0);
}

void TestRoomEditor::readOnlyIgnoresMouseAndKeyboard()
{
    Editor editor(true);
    editor.setRoom(1, {{0, 0}});
    editor.counts.clear();
    editor.clickAt({0, 0});
    editor.stroke({{2, 2}, {2, 3}});
    editor.key(Qt::Key_Space);
    editor.shiftKey(Qt::Key_Right);
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}}));
    QCOMPARE(editor.roomCount(), 1);
    QCOMPARE(editor.counts.size(), 0);
    QVERIFY(!editor.isModified());
    QCOMPARE(editor.focusPolicy(), Qt::NoFocus);
}

void TestRoomEditor::paintsGroundLinesAndRooms()
{
    Editor editor;
    editor.setRoom(1, {{0, 0}});
    editor.setRoom(4, {{7, 7}});
    const QImage image = editor.grab().toImage();
    for (const int line : {0, 50, 350, 400}) {
        QCOMPARE(image.pixelColor(line, 20), QColor(Qt::black));
        QCOMPARE(image.pixelColor(line + 1, 20), QColor(Qt::black));
        QCOMPARE(image.pixelColor(20, line), QColor(Qt::black));
        QCOMPARE(image.pixelColor(20, line + 1), QColor(Qt::black));
    }
    const QRect empty = grid.cellRect({1, 1});
    QCOMPARE(image.pixelColor(empty.topLeft()), QColor(0x34, 0x34, 0x34));
    QCOMPARE(image.pixelColor(empty.bottomRight()), QColor(0x34, 0x34, 0x34));
    for (const QPoint corner : {QPoint(2, 2), QPoint(49, 2), QPoint(2, 49), QPoint(49, 49)}) {
        QCOMPARE(image.pixelColor(corner), roomColor(1, Qt::white));
        QCOMPARE(image.pixelColor(corner + QPoint(350, 350)), roomColor(4, Qt::white));
    }
}

void TestRoomEditor::everyCellCarriesItsNumber()
{
    Editor editor;
    editor.setRoom(2, {{0, 0}, {1, 0}});
    const QImage image = editor.grab().toImage();
    for (const QPoint cell : editor.cellsOf(2)) {
        const QRect middle = grid.cellRect(cell).adjusted(12, 12, -12, -12);
        QVERIFY(whitePixels(image, middle) > 5);
        QCOMPARE(whitePixels(image, grid.cellRect(cell)), whitePixels(image, middle));
    }
}

void TestRoomEditor::unknownRoomsArePaintedWhite()
{
    Editor editor;
    editor.setRoom(5, {{0, 0}});
    QCOMPARE(editor.pixel({2, 2}), QColor(Qt::white));
}

void TestRoomEditor::paintsTheSameInPiecesAsInOneGo()
{
    Editor editor;
    editor.stroke({{0, 0}, {1, 0}, {1, 1}});
    const QImage whole = editor.grab().toImage();
    QImage pieces(editor.size(), whole.format());
    for (int x = 0; x < pieces.width(); x += 67) {
        for (int y = 0; y < pieces.height(); y += 67) {
            const QRect part = QRect(x, y, 67, 67) & editor.rect();
            editor.render(&pieces, part.topLeft(), part);
        }
    }
    QCOMPARE(pieces, whole);
}

TESSEL_TEST_MAIN(TestRoomEditor)
#include "tst_roomeditor.moc"
