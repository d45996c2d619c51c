#include "roomcolor.h"
#include "roomgrouplist.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTest>

class TestRoomGroupList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsNumberLayoutAndRooms();
    void theRoomCellIsWhiteOnTheColourOfTheFirstRoom();
    void theRoomKeepsItsColourWhileSelected();
    void takesHeadersAndWidths();
    void selectingARowIsReported();
    void settingGroupsLeavesNoRowCurrent();
    void theArrowKeysSelect();
};

namespace {

QList<RoomGroup> groups()
{
    return {{1, 1, {2, 1}, {}}, {2, 1, {3}, {}}, {3, 2, {7}, {}}};
}

struct List : RoomGroupList
{
    List()
        : RoomGroupList({QStringLiteral("No."), QStringLiteral("Layout"), QStringLiteral("Room")},
                        {60, 70, 80})
    {
        resize(300, 200);
        setGroups(groups());
        show();
    }

    QColor pixelIn(int row, int column)
    {
        const QRect cell = visualRect(model()->index(row, column));
        return viewport()->grab().toImage().pixelColor(cell.bottomRight() - QPoint(3, 3));
    }
};

} // namespace

void TestRoomGroupList::listsNumberLayoutAndRooms()
{
    const List list;
    QCOMPARE(list.topLevelItemCount(), 3);
    QCOMPARE(list.topLevelItem(1)->text(RoomGroupList::NumberColumn), QStringLiteral("2"));
    QCOMPARE(list.topLevelItem(2)->text(RoomGroupList::LayoutColumn), QStringLiteral("2"));
    QCOMPARE(list.topLevelItem(0)->text(RoomGroupList::RoomColumn), QStringLiteral("2,1"));
    QVERIFY(!list.rootIsDecorated());
    QVERIFY(!list.accessibleName().isEmpty());
}

void TestRoomGroupList::theRoomCellIsWhiteOnTheColourOfTheFirstRoom()
{
    List list;
    for (int row = 0; row < 3; ++row) {
        const QTreeWidgetItem* item = list.topLevelItem(row);
        const QColor color = roomColor(groups().at(row).rooms.first(), Qt::white);
        QCOMPARE(item->background(RoomGroupList::RoomColumn).color(), color);
        QCOMPARE(item->foreground(RoomGroupList::RoomColumn).color(), QColor(Qt::white));
        QCOMPARE(list.pixelIn(row, RoomGroupList::RoomColumn), color);
    }
}

void TestRoomGroupList::theRoomKeepsItsColourWhileSelected()
{
    List list;
    const QColor before = list.pixelIn(0, RoomGroupList::NumberColumn);
    list.selectGroup(0);
    QCOMPARE(list.pixelIn(0, RoomGroupList::RoomColumn), roomColor(2, Qt::white));
    QVERIFY(list.pixelIn(0, RoomGroupList::NumberColumn) != before);
}

void TestRoomGroupList::takesHeadersAndWidths()
{
    const List list;
    QCOMPARE(list.headerItem()->text(1), QStringLiteral("Layout"));
    QCOMPARE(list.columnWidth(0), 60);
    QCOMPARE(list.columnWidth(1), 70);
}

void TestRoomGroupList::selectingARowIsReported()
{
    List list;
    QCOMPARE(list.currentGroup(), -1);
    QSignalSpy selected(&list, SIGNAL(itemSelectionChanged()));
    list.selectGroup(1);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(list.currentGroup(), 1);
    list.selectGroup(7);
    list.selectGroup(-1);
    QCOMPARE(list.currentGroup(), 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.topLevelItem(2)).center());
    QCOMPARE(selected.size(), 2);
    QCOMPARE(list.currentGroup(), 2);
}

void TestRoomGroupList::settingGroupsLeavesNoRowCurrent()
{
    List list;
    list.selectGroup(2);
    QSignalSpy selected(&list, SIGNAL(itemSelectionChanged()));
    list.setGroups(groups().mid(0, 1));
    QCOMPARE(selected.size(), 0);
    QCOMPARE(list.currentGroup(), -1);
    QCOMPARE(list.topLevelItemCount(), 1);
    list.selectGroup(0);
    QCOMPARE(selected.size(), 1);
    list.setGroups({});
    QCOMPARE(list.topLevelItemCount(), 0);
}

void TestRoomGroupList::theArrowKeysSelect()
{
    List list;
    list.selectGroup(0);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(list.currentGroup(), 1);
}

TESSEL_TEST_MAIN(TestRoomGroupList)
#include "tst_roomgrouplist.moc"
