#include "gridcolor.h"
#include "gridgeometry.h"
#include "roomcolor.h"
#include "tessel.h"
#include "tesselbutton.h"
#include "testcase.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRandomGenerator>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestTessel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheFixedSizeOfItsGrid();
    void anEmptyGridShowsNothing();
    void oneRoomHasNoBoxesAndAnEmptyMenu();
    void aLongBorderHasOneBoxAtItsFirstCell();
    void theBoxOfAHorizontalBorderLiesOnIt();
    void aCellsRightBorderComesBeforeItsLowerOne();
    void everyTouchingPairHasABox();
    void checkingABoxCombinesItsRooms();
    void uncheckingTheOnlyLinkSplitsTheRoomsAgain();
    void linksInAChainAreOneRoom();
    void roomsThatDoNotTouchAreLinkedThroughTheMenu();
    void theMenuChecksTheBoxWithoutAClick();
    void theMenuListsEveryOtherRoom();
    void clickingAMenuEntryLinks();
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

    void aPressOnTheMarkOpensTheMenuBelowIt();
    void anyMouseButtonOpensTheMenuOnTheMark();
    void aClickBesideTheMarkDoesNothing();
    void aRightClickInTheRoomOpensItsMenu();
    void aRightClickOutsideTheRoomsDoesNothing();
    void aRightClickOnTheMarkOpensOneMenu();
    void aRightClickOnALinkBoxOpensNoMenu();
    void theMenuIsDeletedWhenItCloses();
    void readOnlyOpensNoMenusAndShowsNoMarks();

    void arrowsMoveFromRoomToRoom();
    void arrowsReachEveryRoom();
    void spaceOpensTheMenuOfTheCurrentRoom();
    void theMenuKeyOpensTheMenuOfTheCurrentRoom();
    void theCurrentRoomIsOutlinedForTheKeyboardOnly();
    void tabGoesThroughTheBoxesInReadingOrder();
    void otherKeysGoOn();
    void assistiveTechnologyHearsNames();
};

namespace {

constexpr GridGeometry grid{1, 48};

using Cells = QList<QPoint>;

Cells block(int left, int top, int width, int height)
{
    Cells cells;
    for (int x = left; x < left + width; ++x) {
        for (int y = top; y < top + height; ++y) {
            cells.append({x, y});
        }
    }
    return cells;
}

/// Four rooms in the corners, two cells wide and high; 1 and 2 above, 3 and 4 below.
QList<Cells> fourCorners()
{
    return {block(0, 0, 2, 2), block(2, 0, 2, 2), block(0, 2, 2, 2), block(2, 2, 2, 2)};
}

/// Rooms in a row from left to right, two cells wide; the first and the third do not touch.
QList<Cells> inARow(int rooms)
{
    QList<Cells> cells;
    for (int room = 0; room < rooms; ++room) {
        cells.append(block(2 * room, 3, 2, 1));
    }
    return cells;
}

struct Picker : Tessel
{
    explicit Picker(const QList<Cells>& rooms, bool readOnly = false)
        : Tessel(nullptr, grid.gap, grid.cellSize, readOnly)
    {
        fill(rooms);
        show();
    }

    void fill(const QList<Cells>& rooms)
    {
        clearAll();
        for (int i = 0; i < rooms.size(); ++i) {
            setRoom(i + 1, rooms.at(i));
        }
        createLinkButtons();
        update();
    }

    QList<TesselButton*> boxes() const { return findChildren<TesselButton*>(); }

    TesselButton* box(int one, int other) const
    {
        const QString name = QStringLiteral("Link room %1 and room %2").arg(one).arg(other);
        for (TesselButton* button : boxes()) {
            if (button->accessibleName() == name) {
                return button;
            }
        }
        return nullptr;
    }

    void clickBox(int one, int other) { QTest::mouseClick(box(one, other), Qt::LeftButton); }

    /// The menus that are open.
    QList<QMenu*> menus() const
    {
        QList<QMenu*> open;
        for (QMenu* menu : findChildren<QMenu*>()) {
            if (menu->isVisible()) {
                open.append(menu);
            }
        }
        return open;
    }

    /// The entries of the only open menu.
    QStringList entries() const
    {
        QStringList texts;
        for (const QAction* action : menus().value(0)->actions()) {
            texts.append(action->text());
        }
        return texts;
    }

    QMenu* rightClick(QPoint position)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, mapToGlobal(position));
        QCoreApplication::sendEvent(this, &event);
        return menus().value(0);
    }

    void closeMenus()
    {
        for (QMenu* menu : menus()) {
            menu->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QColor colorAt(QPoint cell)
    {
        return grab().toImage().pixelColor(grid.cellRect(cell).topLeft() + QPoint(4, 4));
    }
};

QColor roomOwn(int room)
{
    return roomColor(room, Qt::white);
}

int countOf(const QImage& image, const QRect& rect, const QColor& color)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

QAction* entry(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

} // namespace

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

void TestTessel::oneRoomHasNoBoxesAndAnEmptyMenu()
{
    Picker picker({block(0, 0, 3, 3)});
    QCOMPARE(picker.boxes().size(), 0);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1"));
    QVERIFY(picker.rightClick({20, 20}));
    QCOMPARE(picker.entries(), QStringList());
    picker.closeMenus();
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

void TestTessel::roomsThatDoNotTouchAreLinkedThroughTheMenu()
{
    Picker picker(inARow(4));
    QVERIFY(!picker.box(1, 3));
    QMenu* menu = picker.rightClick(grid.cellRect({0, 3}).center());
    entry(menu, QStringLiteral("Room 1 + 3"))->trigger();
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+3/2/4"));
    QCOMPARE(picker.colorAt({4, 3}), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(picker.colorAt({2, 3}), roomOwn(2));
    picker.closeMenus();
}

void TestTessel::theMenuChecksTheBoxWithoutAClick()
{
    Picker picker(fourCorners());
    QSignalSpy clicked(picker.box(1, 2), SIGNAL(clicked(bool)));
    QMenu* menu = picker.rightClick(grid.cellRect({2, 0}).center());
    entry(menu, QStringLiteral("Room 2 + 1"))->trigger();
    QVERIFY(picker.box(1, 2)->isChecked());
    QCOMPARE(clicked.size(), 0);
    picker.closeMenus();
    menu = picker.rightClick(grid.cellRect({0, 0}).center());
    QVERIFY(entry(menu, QStringLiteral("Room 1 + 2"))->isChecked());
    QVERIFY(!entry(menu, QStringLiteral("Room 1 + 3"))->isChecked());
    entry(menu, QStringLiteral("Room 1 + 2"))->trigger();
    QVERIFY(!picker.box(1, 2)->isChecked());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2/3/4"));
    picker.closeMenus();
}

void TestTessel::theMenuListsEveryOtherRoom()
{
    Picker picker(inARow(4));
    QMenu* menu = picker.rightClick(grid.cellRect({2, 3}).center());
    QCOMPARE(picker.entries(),
             QStringList({QStringLiteral("Room 2 + 1"), QStringLiteral("Room 2 + 3"),
                          QStringLiteral("Room 2 + 4")}));
    QCOMPARE(menu->actions().first()->data().toString(), QStringLiteral("1,2"));
    QVERIFY(menu->actions().first()->isCheckable());
    QCOMPARE(menu->parent(), &picker);
    picker.closeMenus();
}

void TestTessel::clickingAMenuEntryLinks()
{
    Picker picker(inARow(3));
    QMenu* menu = picker.rightClick(grid.cellRect({0, 3}).center());
    const QAction* action = entry(menu, QStringLiteral("Room 1 + 3"));
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(const_cast<QAction*>(action)).center());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+3/2"));
    QCOMPARE(picker.menus().size(), 0);
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
    QVERIFY(countOf(image, QRect(center - QPoint(5, 8), QSize(10, 16)), Qt::white) > 3);
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

void TestTessel::aPressOnTheMarkOpensTheMenuBelowIt()
{
    Picker picker({block(0, 0, 2, 1), block(2, 0, 2, 1)});
    const QPoint center = QRect(99, 1, 97, 48).center();
    QTest::mousePress(&picker, Qt::LeftButton, {}, center + QPoint(4, -2));
    QCOMPARE(picker.entries(), QStringList({QStringLiteral("Room 2 + 1")}));
    const QRect hotSpot(center + QPoint(4, -2), QSize(12, 8));
    QCOMPARE(picker.menus().first()->pos(), picker.mapToGlobal(hotSpot.bottomLeft()));
    picker.closeMenus();
    QTest::mousePress(&picker, Qt::LeftButton, {}, hotSpot.bottomRight());
    QCOMPARE(picker.menus().size(), 1);
    picker.closeMenus();
}

void TestTessel::anyMouseButtonOpensTheMenuOnTheMark()
{
    Picker picker(inARow(2));
    const QPoint mark = QRect(1, 148, 97, 48).center() + QPoint(10, 2);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        QTest::mousePress(&picker, button, {}, mark);
        QCOMPARE(picker.menus().size(), 1);
        picker.closeMenus();
    }
}

void TestTessel::aClickBesideTheMarkDoesNothing()
{
    Picker picker({block(0, 0, 2, 1), block(2, 0, 2, 1)});
    const QPoint center = QRect(1, 1, 97, 48).center();
    const QRect hotSpot(center + QPoint(4, -2), QSize(12, 8));
    for (const QPoint position :
         {hotSpot.topLeft() - QPoint(1, 0), hotSpot.bottomRight() + QPoint(1, 0),
          hotSpot.topLeft() - QPoint(0, 1), hotSpot.bottomRight() + QPoint(0, 1), QPoint(5, 5),
          QPoint(5, 300)}) {
        QTest::mouseClick(&picker, Qt::LeftButton, {}, position);
        QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    }
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1/2"));
}

void TestTessel::aRightClickInTheRoomOpensItsMenu()
{
    Picker picker({block(0, 0, 2, 2), block(4, 4, 1, 1)});
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {}, {49, 49});
    QCOMPARE(picker.entries(), QStringList({QStringLiteral("Room 1 + 2")}));
    QCOMPARE(picker.menus().first()->pos(), picker.mapToGlobal(QPoint(49, 49)));
    picker.closeMenus();
}

void TestTessel::aRightClickOutsideTheRoomsDoesNothing()
{
    Picker picker({block(0, 0, 2, 2), block(4, 4, 1, 1)});
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {}, {300, 20});
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
}

void TestTessel::aRightClickOnTheMarkOpensOneMenu()
{
    Picker picker(inARow(2));
    const QPoint mark = QRect(1, 148, 97, 48).center() + QPoint(10, 2);
    // Through the window, where a right press is followed by the request for a menu.
    QTest::mousePress(picker.windowHandle(), Qt::RightButton, {}, mark);
    QCOMPARE(picker.findChildren<QMenu*>().size(), 1);
    picker.closeMenus();
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    // Where the request comes with the release.
    QTest::mousePress(&picker, Qt::RightButton, {}, mark);
    picker.rightClick(mark);
    QCOMPARE(picker.findChildren<QMenu*>().size(), 1);
    picker.closeMenus();
    // The next one opens again.
    QVERIFY(picker.rightClick(mark));
    picker.closeMenus();
}

void TestTessel::aRightClickOnALinkBoxOpensNoMenu()
{
    Picker picker(inARow(2));
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {},
                      picker.box(1, 2)->geometry().center());
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    QVERIFY(picker.box(1, 2)->isChecked());
}

void TestTessel::theMenuIsDeletedWhenItCloses()
{
    Picker picker(inARow(2));
    for (int i = 0; i < 3; ++i) {
        QMenu* menu = picker.rightClick(grid.cellRect({0, 3}).center());
        QTest::keyClick(menu, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    }
}

void TestTessel::readOnlyOpensNoMenusAndShowsNoMarks()
{
    Picker picker({block(0, 0, 2, 1), block(2, 0, 2, 1)}, true);
    const QPoint center = QRect(1, 1, 97, 48).center();
    QTest::mouseClick(&picker, Qt::LeftButton, {}, center + QPoint(10, 2));
    QTest::mouseClick(&picker, Qt::RightButton, {}, center + QPoint(10, 2));
    picker.rightClick(center);
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    const QImage image = picker.grab().toImage();
    QCOMPARE(countOf(image, QRect(center + QPoint(6, -2), QSize(12, 8)), Qt::white), 0);
    QVERIFY(countOf(image, QRect(center - QPoint(5, 8), QSize(10, 16)), Qt::white) > 3);
    QCOMPARE(picker.focusPolicy(), Qt::NoFocus);
}

void TestTessel::arrowsMoveFromRoomToRoom()
{
    Picker picker(fourCorners());
    picker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&picker));
    picker.setFocus();
    QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room 1"));
    const QList<std::pair<Qt::Key, int>> steps{
        {Qt::Key_Right, 2}, {Qt::Key_Right, 2}, {Qt::Key_Down, 4}, {Qt::Key_Left, 3},
        {Qt::Key_Left, 3},  {Qt::Key_Down, 3},  {Qt::Key_Up, 1},   {Qt::Key_Up, 1}};
    for (const auto& [key, room] : steps) {
        QTest::keyClick(&picker, key);
        QCOMPARE(picker.accessibleDescription(), QStringLiteral("Room %1").arg(room));
    }
}

void TestTessel::arrowsReachEveryRoom()
{
    // Whatever the rooms look like, no room may be out of reach of the keyboard.
    QRandomGenerator random(4);
    for (int drawing = 0; drawing < 200; ++drawing) {
        QList<Cells> rooms(4);
        for (int x = 0; x < 8; ++x) {
            for (int y = 0; y < 8; ++y) {
                const int room = int(random.bounded(9));
                if (room < 4) {
                    rooms[room].append({x, y});
                }
            }
        }
        Picker picker(rooms);
        picker.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&picker));
        picker.setFocus();
        QSet<QString> reached;
        for (int step = 0; step < 200 && reached.size() < 4; ++step) {
            reached.insert(picker.accessibleDescription());
            QTest::keyClick(&picker, Qt::Key(Qt::Key_Left + int(random.bounded(4))));
        }
        QCOMPARE(reached.size(), 4);
    }
}

void TestTessel::spaceOpensTheMenuOfTheCurrentRoom()
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

void TestTessel::theMenuKeyOpensTheMenuOfTheCurrentRoom()
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

void TestTessel::theCurrentRoomIsOutlinedForTheKeyboardOnly()
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
    picker.clearFocus();
    QCOMPARE(edge(2), roomOwn(2));
}

void TestTessel::tabGoesThroughTheBoxesInReadingOrder()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* picker = new Picker(fourCorners());
    auto* after = new QLineEdit(&window);
    layout->addWidget(picker);
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

void TestTessel::otherKeysGoOn()
{
    Picker picker(inARow(2));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&picker, &event);
    QVERIFY(!event.isAccepted());
}

void TestTessel::assistiveTechnologyHearsNames()
{
    Picker picker(inARow(2));
    QCOMPARE(QAccessible::queryAccessibleInterface(&picker)->text(QAccessible::Name),
             QStringLiteral("Room combination"));
    QVERIFY(!picker.toolTip().isEmpty());
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(picker.boxes().first());
    QCOMPARE(box->role(), QAccessible::Button);
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Link room 1 and room 2"));
    QVERIFY(!picker.boxes().first()->toolTip().isEmpty());
    box->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+2"));
}

TESSEL_TEST_MAIN(TestTessel)
#include "tst_tessel.moc"
