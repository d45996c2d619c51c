#include "paintwatch.h"
#include "roomcolor.h"
#include "roomeditorfixture.h"
#include "testcase.h"

#include <QAccessible>

class TestRoomEditorKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsMoveTheCursorAndSpaceClicks();
    void spaceOnARoomRemovesIt();
    void aFifthRoomCannotBeBegunWithTheKeyboard();
    void shiftWithAnArrowGrowsTheRoom();
    void aShiftStrokeCrossesOtherRoomsLikeTheMouse();
    void aNewShiftStrokeBeginsInTheRoomUnderTheCursor();
    void theCursorStopsAtTheEdge();
    void theCursorShowsForTheKeyboardOnly();
    void aFocusThatNoKeyBroughtShowsNoCursor();
    void anArrowAgainstTheEdgeShowsTheCursorAtOnce();
    void otherKeysGoOn();
    void tellsAssistiveTechnologyWhereTheCursorIs();
    void tellsAssistiveTechnologyWhatTheMouseDid();
    void tellsAssistiveTechnologyWhatBecameOfTheCell();
};

void TestRoomEditorKeys::arrowsMoveTheCursorAndSpaceClicks()
{
    Editor editor;
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Down);
    editor.key(Qt::Key_Space);
    editor.key(Qt::Key_Left);
    editor.key(Qt::Key_Up);
    editor.key(Qt::Key_Space);
    QCOMPARE(editor.cellsOf(1), Cells({{2, 1}}));
    QCOMPARE(editor.cellsOf(2), Cells({{1, 0}}));
    QCOMPARE(values(editor.counts), QList<int>({1, 2}));
    QVERIFY(editor.isModified());
}

void TestRoomEditorKeys::spaceOnARoomRemovesIt()
{
    Editor editor;
    editor.setRoom(1, {{0, 0}, {5, 5}});
    editor.setRoom(2, {{7, 7}});
    editor.key(Qt::Key_Space);
    QCOMPARE(editor.cellsOf(1), Cells({{7, 7}}));
    QCOMPARE(editor.roomCount(), 1);
}

void TestRoomEditorKeys::aFifthRoomCannotBeBegunWithTheKeyboard()
{
    Editor editor;
    for (int room = 1; room <= 4; ++room) {
        editor.setRoom(room, {{room, 7}});
    }
    editor.key(Qt::Key_Space);
    editor.shiftKey(Qt::Key_Right);
    editor.shiftKey(Qt::Key_Down);
    QCOMPARE(editor.cellsOf(0).size(), 60);
    QVERIFY(!editor.isModified());
    // The cursor moved with the stroke all the same.
    editor.clear();
    editor.key(Qt::Key_Space);
    QCOMPARE(editor.cellsOf(1), Cells({{1, 1}}));
}

void TestRoomEditorKeys::shiftWithAnArrowGrowsTheRoom()
{
    Editor editor;
    QTest::keyPress(&editor, Qt::Key_Shift);
    QTest::keyPress(&editor, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyPress(&editor, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyRelease(&editor, Qt::Key_Shift);
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {1, 0}, {1, 1}}));
    QCOMPARE(values(editor.counts), QList<int>({1}));
    QVERIFY(editor.isModified());
}

void TestRoomEditorKeys::aShiftStrokeCrossesOtherRoomsLikeTheMouse()
{
    Editor editor;
    editor.setRoom(1, {{0, 0}, {2, 1}});
    editor.setRoom(2, {{1, 0}});
    QTest::keyPress(&editor, Qt::Key_Shift);
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::ShiftModifier);
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendEvent(&editor, &right);
    }
    // Room 2 stays; beyond it only the cell that touches room 1 and then its neighbour join.
    QCOMPARE(editor.cellsOf(1), Cells({{0, 0}, {2, 0}, {2, 1}, {3, 0}}));
    QCOMPARE(editor.cellsOf(2), Cells({{1, 0}}));
}

void TestRoomEditorKeys::aNewShiftStrokeBeginsInTheRoomUnderTheCursor()
{
    Editor editor;
    editor.setRoom(1, {{0, 0}});
    editor.setRoom(2, {{1, 0}});
    editor.key(Qt::Key_Right);
    editor.shiftKey(Qt::Key_Down);
    editor.shiftKey(Qt::Key_Right);
    QCOMPARE(editor.cellsOf(2), Cells({{1, 0}, {1, 1}, {2, 1}}));
    editor.key(Qt::Key_Right);
    editor.shiftKey(Qt::Key_Right);
    QCOMPARE(editor.cellsOf(3), Cells({{3, 1}, {4, 1}}));
}

void TestRoomEditorKeys::theCursorStopsAtTheEdge()
{
    Editor editor;
    for (int i = 0; i < 9; ++i) {
        editor.key(Qt::Key_Down);
        editor.key(Qt::Key_Right);
    }
    editor.key(Qt::Key_Space);
    QCOMPARE(editor.cellsOf(1), Cells({{7, 7}}));
    editor.shiftKey(Qt::Key_Right);
    editor.shiftKey(Qt::Key_Down);
    QCOMPARE(editor.cellsOf(1), Cells({{7, 7}}));
}

void TestRoomEditorKeys::theCursorShowsForTheKeyboardOnly()
{
    Editor editor;
    editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    editor.clearFocus();
    const QPoint inRing = grid.cellRect({0, 0}).topLeft() + QPoint(1, 1);
    QCOMPARE(editor.pixel(inRing), QColor(0x34, 0x34, 0x34));
    editor.setFocus(Qt::TabFocusReason);
    QCOMPARE(editor.pixel(inRing), QColor(Qt::white));
    editor.key(Qt::Key_Right);
    QCOMPARE(editor.pixel(inRing), QColor(0x34, 0x34, 0x34));
    QCOMPARE(editor.pixel(inRing + QPoint(50, 0)), QColor(Qt::white));
    editor.clickAt({5, 5});
    QCOMPARE(editor.pixel(inRing + QPoint(50, 0)), QColor(0x34, 0x34, 0x34));
    QCOMPARE(editor.pixel(inRing + QPoint(250, 250)), roomColor(1, Qt::white));
    // The keyboard goes on where the mouse was.
    editor.key(Qt::Key_Right);
    QCOMPARE(editor.pixel(inRing + QPoint(300, 250)), QColor(Qt::white));
}

void TestRoomEditorKeys::aFocusThatNoKeyBroughtShowsNoCursor()
{
    Editor editor;
    editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    editor.clearFocus();
    const QImage before = editor.grab().toImage();
    editor.setFocus(Qt::OtherFocusReason);
    QVERIFY(editor.hasFocus());
    QCOMPARE(editor.grab().toImage(), before);
}

void TestRoomEditorKeys::anArrowAgainstTheEdgeShowsTheCursorAtOnce()
{
    Editor editor;
    editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    editor.setFocus(Qt::OtherFocusReason);
    // What was asked for so far is painted now.
    QCoreApplication::processEvents();
    const PaintWatch watch(editor);
    editor.key(Qt::Key_Up);
    const QRect cell = grid.cellRect({0, 0});
    QTRY_VERIFY(watch.painted.contains(cell));
    QCOMPARE(editor.pixel(cell.topLeft() + QPoint(1, 1)), QColor(Qt::white));
}

void TestRoomEditorKeys::otherKeysGoOn()
{
    Editor editor;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&editor, &event);
    QVERIFY(!event.isAccepted());
}

void TestRoomEditorKeys::tellsAssistiveTechnologyWhereTheCursorIs()
{
    Editor editor;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&editor);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Room design"));
    QVERIFY(!editor.toolTip().isEmpty());
    editor.key(Qt::Key_Down);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("Column 1, row 2, empty"));
    editor.key(Qt::Key_Space);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("Column 1, row 2, room 1"));
}

void TestRoomEditorKeys::tellsAssistiveTechnologyWhatTheMouseDid()
{
    Editor editor;
    editor.clickAt({3, 4});
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 4, row 5, room 1"));
    editor.clickAt({3, 4});
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 4, row 5, empty"));
    editor.pressAt({0, 1});
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 1, row 2, empty"));
    editor.moveToPosition(Editor::center({0, 1}) + QPoint(1, 1));
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 1, row 2, room 1"));
}

void TestRoomEditorKeys::tellsAssistiveTechnologyWhatBecameOfTheCell()
{
    Editor editor;
    editor.key(Qt::Key_Space);
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 1, row 1, room 1"));
    editor.clear();
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 1, row 1, empty"));
    editor.setRoom(2, {{0, 0}});
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Column 1, row 1, room 2"));
    Editor picture(true);
    picture.setRoom(1, {{0, 0}});
    QCOMPARE(picture.accessibleDescription(), QString());
}

TESSEL_TEST_MAIN(TestRoomEditorKeys)
#include "tst_roomeditorkeys.moc"
