#include "layoutqueries.h"
#include "roomgroup.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QTest>

class TestRoomGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void combinedRoomsAreNumberedThroughAllLayouts();
    void everyCombinedRoomHasItsLayoutsPicture();
    void roomsAreShownWithCommas_data();
    void roomsAreShownWithCommas();
    void whatIsNoNumberIsRoomZero();
    void aLayoutThatIsMissingIsPassedOver();
    void withoutLayoutsThereAreNone();
    void equalLayoutsHaveEqualTexts_data();
    void equalLayoutsHaveEqualTexts();
    void aTextReadsBackAsTheRoomsThatItWasMadeOf();
};

namespace {

using Rooms = QList<QList<int>>;

void addLayoutOf(TesselDoc& doc, int number, const QString& text)
{
    QPixmap picture(8 * number, 8);
    picture.fill(Qt::red);
    QVERIFY(addLayout(doc, {number, text, picture}));
}

Rooms roomsOf(const QList<RoomGroup>& groups)
{
    Rooms rooms;
    for (const RoomGroup& group : groups) {
        rooms.append(group.rooms);
    }
    return rooms;
}

/// The combined rooms of a document with this one layout.
QList<RoomGroup> groupsOf(const QString& text)
{
    TesselDoc doc(nullptr);
    addLayoutOf(doc, 1, text);
    return roomGroups(doc);
}

} // namespace

void TestRoomGroup::combinedRoomsAreNumberedThroughAllLayouts()
{
    TesselDoc doc(nullptr);
    addLayoutOf(doc, 1, QStringLiteral("1+2/3"));
    addLayoutOf(doc, 2, QStringLiteral("1/2+3"));
    const QList<RoomGroup> groups = roomGroups(doc);
    QCOMPARE(roomsOf(groups), Rooms({{1, 2}, {3}, {1}, {2, 3}}));
    const QList<int> layouts{1, 1, 2, 2};
    for (int i = 0; i < groups.size(); ++i) {
        QCOMPARE(groups.at(i).number, i + 1);
        QCOMPARE(groups.at(i).sceneNumber, layouts.at(i));
    }
}

void TestRoomGroup::everyCombinedRoomHasItsLayoutsPicture()
{
    TesselDoc doc(nullptr);
    addLayoutOf(doc, 1, QStringLiteral("1/2"));
    addLayoutOf(doc, 2, QStringLiteral("1+2"));
    const QList<RoomGroup> groups = roomGroups(doc);
    QCOMPARE(groups.size(), 3);
    QCOMPARE(groups.at(0).thumbnail.width(), 8);
    QCOMPARE(groups.at(1).thumbnail.width(), 8);
    QCOMPARE(groups.at(2).thumbnail.width(), 16);
}

void TestRoomGroup::roomsAreShownWithCommas_data()
{
    QTest::addColumn<QList<int>>("rooms");
    QTest::addColumn<QString>("text");
    QTest::newRow("one room") << QList<int>{3} << QStringLiteral("3");
    QTest::newRow("two rooms") << QList<int>{1, 2} << QStringLiteral("1,2");
    QTest::newRow("as given") << QList<int>{4, 1, 3} << QStringLiteral("4,1,3");
}

void TestRoomGroup::roomsAreShownWithCommas()
{
    QFETCH(const QList<int>, rooms);
    QTEST(RoomGroup({1, 1, rooms, {}}).roomText(), "text");
}

void TestRoomGroup::whatIsNoNumberIsRoomZero()
{
    QCOMPARE(roomsOf(groupsOf(QStringLiteral("a/1+b"))), Rooms({{0}, {1, 0}}));
    QCOMPARE(roomsOf(groupsOf(QString())), Rooms{{0}});
}

void TestRoomGroup::aLayoutThatIsMissingIsPassedOver()
{
    TesselDoc doc(nullptr);
    addLayoutOf(doc, 2, QStringLiteral("1/2"));
    addLayoutOf(doc, 7, QStringLiteral("1+2"));
    const QList<RoomGroup> groups = roomGroups(doc);
    QCOMPARE(roomsOf(groups), Rooms({{1}, {2}}));
    QCOMPARE(groups.first().number, 1);
    QCOMPARE(groups.first().sceneNumber, 2);
}

void TestRoomGroup::withoutLayoutsThereAreNone()
{
    TesselDoc doc(nullptr);
    QVERIFY(roomGroups(doc).isEmpty());
}

void TestRoomGroup::equalLayoutsHaveEqualTexts_data()
{
    QTest::addColumn<Rooms>("rooms");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << Rooms{} << QString();
    QTest::newRow("alone") << Rooms{{3}, {1}, {2}} << QStringLiteral("1/2/3");
    QTest::newRow("combined") << Rooms{{3}, {2, 1}, {4}} << QStringLiteral("1+2/3/4");
    QTest::newRow("two pairs") << Rooms{{4, 2}, {3, 1}} << QStringLiteral("1+3/2+4");
    QTest::newRow("all") << Rooms{{2, 4, 1, 3}} << QStringLiteral("1+2+3+4");
}

void TestRoomGroup::equalLayoutsHaveEqualTexts()
{
    QFETCH(const Rooms, rooms);
    QTEST(layoutText(rooms), "text");
}

void TestRoomGroup::aTextReadsBackAsTheRoomsThatItWasMadeOf()
{
    for (const Rooms& rooms : {Rooms{{1}}, Rooms{{1, 2}, {3}, {4}}, Rooms{{1, 3}, {2, 4}}}) {
        QCOMPARE(roomsOf(groupsOf(layoutText(rooms))), rooms);
    }
}

TESSEL_TEST_MAIN(TestRoomGroup)
#include "tst_roomgroup.moc"
