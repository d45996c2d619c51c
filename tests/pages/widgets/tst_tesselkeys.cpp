#include "paintwatch.h"
#include "tesselfixture.h"
#include "testcase.h"

#include <QAccessible>
#include <QLineEdit>
#include <QVBoxLayout>

class TestTesselKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsMoveFromRoomToRoom();
    void spaceOpensTheMenuOfTheCurrentRoom();
    void theMenuKeyOpensTheMenuOfTheCurrentRoom();
    void theCurrentRoomIsOutlinedForTheKeyboardOnly();
    void aClickBetweenTheRoomsTakesTheOutlineAway();
    void aFocusThatNoKeyBroughtShowsNoOutline();
    void aKeyThatMovesNothingShowsTheOutlineAtOnce_data();
    void aKeyThatMovesNothingShowsTheOutlineAtOnce();
    void tabGoesThroughTheBoxesInReadingOrder();
    void otherKeysGoOn();
    void thePickerSaysWithWhichRoomsARoomIsCombined();
    void assistiveTechnologyHearsNames();
};

void TestTesselKeys::arrowsMoveFromRoomToRoom()
{
    Picker picker(fourCorners());
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus();
    QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room 1, not combined"));
    const QList<std::pair<Qt::Key, int>> steps{
        {Qt::Key_Right, 2}, {Qt::Key_Right, 2}, {Qt::Key_Down, 4}, {Qt::Key_Left, 3},
        {Qt::Key_Left, 3},  {Qt::Key_Down, 3},  {Qt::Key_Up, 1},   {Qt::Key_Up, 1}};
    for (const auto& [key, room] : steps) {
        QTest::keyClick(&picker, key);
        QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room %1, not combined").arg(room));
    }
}

void TestTesselKeys::spaceOpensTheMenuOfTheCurrentRoom()
{
    Picker picker(inARow(3));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus();
    QTest::keyClick(&picker, Qt::Key_Right);
    QTest::keyPress(&picker, Qt::Key_Space);
    QCOMPARE(picker.entries(),
             QStringList({QStringLiteral("Room 2 + 1"), QStringLiteral("Room 2 + 3")}));
    QMenu* menu = picker.menus().first();
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2+3"));
    QCOMPARE(picker.menus().size(), 0);
}

void TestTesselKeys::theMenuKeyOpensTheMenuOfTheCurrentRoom()
{
    Picker picker(inARow(2));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus();
    QTest::keyClick(&picker, Qt::Key_Right);
    const QPoint center = picker.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, center, picker.mapToGlobal(center));
    QCoreApplication::sendEvent(&picker, &event);
    QCOMPARE(picker.entries(), QStringList({QStringLiteral("Room 2 + 1")}));
    picker.closeMenus();
}

void TestTesselKeys::theCurrentRoomIsOutlinedForTheKeyboardOnly()
{
    Picker picker(inARow(2));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    const auto edge = [&](int column) {
        return picker.grab().toImage().pixelColor(grid.cellRect({column, 3}).topLeft() +
                                                  QPoint(1, 1));
    };
    QTest::mouseClick(&picker, Qt::LeftButton, {}, grid.cellRect({0, 3}).center());
    QCOMPARE(edge(0), roomOwn(1));
    picker.clearFocus();
    picker.setFocus(Qt::TabFocusReason);
    QCOMPARE(edge(0), QColor(Qt::white));
    QCOMPARE(edge(2), roomOwn(2));
    QTest::keyClick(&picker, Qt::Key_Right);
    QCOMPARE(edge(0), roomOwn(1));
    QCOMPARE(edge(2), QColor(Qt::white));
    QTest::mouseClick(&picker, Qt::LeftButton, {}, grid.cellRect({2, 3}).center());
    QVERIFY(picker.hasFocus());
    QCOMPARE(edge(2), roomOwn(2));
    QTest::keyClick(&picker, Qt::Key_Right);
    QCOMPARE(edge(2), QColor(Qt::white));
    picker.clearFocus();
    QCOMPARE(edge(2), roomOwn(2));
}

void TestTesselKeys::aClickBetweenTheRoomsTakesTheOutlineAway()
{
    Picker picker(inARow(2));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus(Qt::TabFocusReason);
    // What was asked for so far is painted now.
    QCoreApplication::processEvents();
    PaintWatch watch(picker);
    QTest::mouseClick(&picker, Qt::LeftButton, {}, grid.cellRect({7, 7}).center());
    QTRY_VERIFY(!watch.painted.isEmpty());
}

void TestTesselKeys::aFocusThatNoKeyBroughtShowsNoOutline()
{
    Picker picker(inARow(2));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.clearFocus();
    const QImage before = picker.grab().toImage();
    picker.setFocus(Qt::OtherFocusReason);
    QVERIFY(picker.hasFocus());
    QCOMPARE(picker.grab().toImage(), before);
}

void TestTesselKeys::aKeyThatMovesNothingShowsTheOutlineAtOnce_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("an arrow where no room is") << Qt::Key_Left;
    QTest::newRow("Space") << Qt::Key_Space;
}

void TestTesselKeys::aKeyThatMovesNothingShowsTheOutlineAtOnce()
{
    QFETCH(const Qt::Key, key);
    Picker picker(inARow(2));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents();
    const PaintWatch watch(picker);
    QTest::keyClick(&picker, key);
    QTRY_VERIFY(watch.painted.contains(grid.cellRect({0, 3})));
    const QPoint edge = grid.cellRect({0, 3}).topLeft() + QPoint(1, 1);
    QCOMPARE(picker.grab().toImage().pixelColor(edge), QColor(Qt::white));
    picker.closeMenus();
}

void TestTesselKeys::tabGoesThroughTheBoxesInReadingOrder()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* picker = new Picker(fourCorners());
    layout->addWidget(picker);
    auto* after = new QLineEdit(&window);
    layout->addWidget(after);
    // Filled anew, as on entering the page, when everything else is there already.
    picker->fill(fourCorners());
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    picker->setFocus();
    for (const RoomPair& pair : {RoomPair(1, 2), RoomPair(1, 3), RoomPair(2, 4), RoomPair(3, 4)}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), picker->box(pair.first, pair.second));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
}

void TestTesselKeys::otherKeysGoOn()
{
    Picker picker(inARow(2));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&picker, &event);
    QVERIFY(!event.isAccepted());
}

void TestTesselKeys::thePickerSaysWithWhichRoomsARoomIsCombined()
{
    Picker picker(inARow(3));
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus();
    picker.clickBox(1, 2);
    QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room 1, combined with room 2"));
    QTest::keyClick(&picker, Qt::Key_Space);
    QTest::keyClick(picker.menus().first(), Qt::Key_Down);
    QTest::keyClick(picker.menus().first(), Qt::Key_Down);
    QTest::keyClick(picker.menus().first(), Qt::Key_Return);
    QCOMPARE(picker.accessibleDescription(),
             QStringLiteral("Room 1, combined with room 2 and room 3"));
    picker.clickBox(1, 2);
    QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room 1, combined with room 3"));
}

void TestTesselKeys::assistiveTechnologyHearsNames()
{
    Picker picker(inARow(2));
    QCOMPARE(QAccessible::queryAccessibleInterface(&picker)->text(QAccessible::Name),
             QStringLiteral("Room combination"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&picker)->role(), QAccessible::Grouping);
    QVERIFY(!picker.toolTip().isEmpty());
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(picker.boxes().first());
    QCOMPARE(box->role(), QAccessible::CheckBox);
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Link room 1 and room 2"));
    QVERIFY(!picker.boxes().first()->toolTip().isEmpty());
    box->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+2"));
}

TESSEL_TEST_MAIN(TestTesselKeys)
#include "tst_tesselkeys.moc"
