#include "tesselfixture.h"
#include "testcase.h"

#include <QSignalSpy>

class TestTesselMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneRoomHasNoBoxesAndAnEmptyMenu();
    void roomsThatDoNotTouchAreLinkedThroughTheMenu();
    void theMenuChecksTheBoxWithoutAClick();
    void theMenuListsEveryOtherRoom();
    void clickingAMenuEntryLinks();
    void aPressOnTheMarkOpensTheMenuBelowIt();
    void anyMouseButtonOpensTheMenuOnTheMark();
    void aClickBesideTheMarkDoesNothing();
    void aRightClickInTheRoomOpensItsMenu();
    void aRightClickOutsideTheRoomsDoesNothing();
    void aRightClickOnTheMarkOpensOneMenu();
    void aRightClickOnALinkBoxOpensNoMenu();
    void theMenuIsDeletedWhenItCloses();
    void readOnlyOpensNoMenusAndShowsNoMarks();
};

namespace {

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

void TestTesselMenu::oneRoomHasNoBoxesAndAnEmptyMenu()
{
    Picker picker({block(0, 0, 3, 3)});
    QCOMPARE(picker.boxes().size(), 0);
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1"));
    QVERIFY(picker.rightClick({20, 20}));
    QCOMPARE(picker.entries(), QStringList());
    picker.closeMenus();
}

void TestTesselMenu::roomsThatDoNotTouchAreLinkedThroughTheMenu()
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

void TestTesselMenu::theMenuChecksTheBoxWithoutAClick()
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

void TestTesselMenu::theMenuListsEveryOtherRoom()
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

void TestTesselMenu::clickingAMenuEntryLinks()
{
    Picker picker(inARow(3));
    QMenu* menu = picker.rightClick(grid.cellRect({0, 3}).center());
    const QAction* action = entry(menu, QStringLiteral("Room 1 + 3"));
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(const_cast<QAction*>(action)).center());
    QCOMPARE(picker.roomGroupText(), QStringLiteral("1+3/2"));
    QCOMPARE(picker.menus().size(), 0);
}

void TestTesselMenu::aPressOnTheMarkOpensTheMenuBelowIt()
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

void TestTesselMenu::anyMouseButtonOpensTheMenuOnTheMark()
{
    Picker picker(inARow(2));
    const QPoint mark = QRect(1, 148, 97, 48).center() + QPoint(10, 2);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        QTest::mousePress(&picker, button, {}, mark);
        QCOMPARE(picker.menus().size(), 1);
        picker.closeMenus();
    }
}

void TestTesselMenu::aClickBesideTheMarkDoesNothing()
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

void TestTesselMenu::aRightClickInTheRoomOpensItsMenu()
{
    Picker picker({block(0, 0, 2, 2), block(4, 4, 1, 1)});
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {}, {49, 49});
    QCOMPARE(picker.entries(), QStringList({QStringLiteral("Room 1 + 2")}));
    QCOMPARE(picker.menus().first()->pos(), picker.mapToGlobal(QPoint(49, 49)));
    picker.closeMenus();
}

void TestTesselMenu::aRightClickOutsideTheRoomsDoesNothing()
{
    Picker picker({block(0, 0, 2, 2), block(4, 4, 1, 1)});
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {}, {300, 20});
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
}

void TestTesselMenu::aRightClickOnTheMarkOpensOneMenu()
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

void TestTesselMenu::aRightClickOnALinkBoxOpensNoMenu()
{
    Picker picker(inARow(2));
    QTest::mouseClick(picker.windowHandle(), Qt::RightButton, {},
                      picker.box(1, 2)->geometry().center());
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    QVERIFY(picker.box(1, 2)->isChecked());
}

void TestTesselMenu::theMenuIsDeletedWhenItCloses()
{
    Picker picker(inARow(2));
    for (int i = 0; i < 3; ++i) {
        QMenu* menu = picker.rightClick(grid.cellRect({0, 3}).center());
        QTest::keyClick(menu, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    }
}

void TestTesselMenu::readOnlyOpensNoMenusAndShowsNoMarks()
{
    Picker picker({block(0, 0, 2, 1), block(2, 0, 2, 1)}, true);
    const QPoint center = QRect(1, 1, 97, 48).center();
    QTest::mouseClick(&picker, Qt::LeftButton, {}, center + QPoint(10, 2));
    QTest::mouseClick(&picker, Qt::RightButton, {}, center + QPoint(10, 2));
    picker.rightClick(center);
    QCOMPARE(picker.findChildren<QMenu*>().size(), 0);
    const QImage image = picker.grab().toImage();
    QCOMPARE(countOf(image, QRect(center + QPoint(6, -2), QSize(12, 8)), Qt::white), 0);
    const QRect number(center - QPoint(5, 8), QSize(10, 16));
    QVERIFY(countOf(image, number, image.pixelColor(2, 2)) < number.width() * number.height() - 3);
    QCOMPARE(picker.focusPolicy(), Qt::NoFocus);
}

TESSEL_TEST_MAIN(TestTesselMenu)
#include "tst_tesselmenu.moc"
