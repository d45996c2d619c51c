#include "roomgroup.h"
#include "roomlinks.h"
#include "testcase.h"

#include <QTest>

class TestRoomLinks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPairNamesTheLowerRoomFirst();
    void theTextNamesEveryRoomOnce_data();
    void theTextNamesEveryRoomOnce();
    void unlinkedPairsCountForNothing();
    void allRoomsOfAChainAreOneGroup();
    void onlyRoomsThatExistTakePart();
    void clearForgetsAllLinks();
};

namespace {

using Pairs = QList<RoomPair>;

RoomLinks linked(const Pairs& pairs)
{
    RoomLinks links;
    for (const RoomPair& pair : pairs) {
        links.set(pair, true);
    }
    return links;
}

} // namespace

void TestRoomLinks::aPairNamesTheLowerRoomFirst()
{
    QCOMPARE(roomPair(3, 1), RoomPair(1, 3));
    QCOMPARE(roomPair(1, 3), RoomPair(1, 3));
}

void TestRoomLinks::theTextNamesEveryRoomOnce_data()
{
    QTest::addColumn<int>("rooms");
    QTest::addColumn<Pairs>("pairs");
    QTest::addColumn<QString>("text");
    QTest::newRow("no rooms") << 0 << Pairs{} << QString();
    QTest::newRow("one room") << 1 << Pairs{} << QStringLiteral("1");
    QTest::newRow("no links") << 4 << Pairs{} << QStringLiteral("1/2/3/4");
    QTest::newRow("one link") << 4 << Pairs{{1, 2}} << QStringLiteral("1+2/3/4");
    QTest::newRow("not adjacent") << 4 << Pairs{{1, 3}} << QStringLiteral("1+3/2/4");
    QTest::newRow("two groups") << 4 << Pairs{{1, 3}, {2, 4}} << QStringLiteral("1+3/2+4");
    QTest::newRow("crossing") << 4 << Pairs{{1, 4}, {2, 3}} << QStringLiteral("1+4/2+3");
    QTest::newRow("chain") << 3 << Pairs{{1, 2}, {2, 3}} << QStringLiteral("1+2+3");
    QTest::newRow("chain of four")
        << 4 << Pairs{{1, 2}, {2, 3}, {3, 4}} << QStringLiteral("1+2+3+4");
    QTest::newRow("late bridge") << 4 << Pairs{{1, 2}, {3, 4}, {2, 4}} << QStringLiteral("1+2+3+4");
    QTest::newRow("triangle") << 4 << Pairs{{1, 2}, {2, 4}, {1, 4}} << QStringLiteral("1+2+4/3");
}

void TestRoomLinks::theTextNamesEveryRoomOnce()
{
    QFETCH(const int, rooms);
    QFETCH(const Pairs, pairs);
    QFETCH(const QString, text);
    QCOMPARE(layoutText(linked(pairs).combinedRooms(rooms)), text);
}

void TestRoomLinks::unlinkedPairsCountForNothing()
{
    RoomLinks links = linked({{1, 2}});
    links.set({1, 2}, false);
    QVERIFY(!links.isLinked({1, 2}));
    QCOMPARE(links.groups(), QList<QList<int>>());
    QCOMPARE(layoutText(links.combinedRooms(2)), QStringLiteral("1/2"));
}

void TestRoomLinks::allRoomsOfAChainAreOneGroup()
{
    QList<QList<int>> groups = linked({{1, 3}, {2, 4}, {3, 4}}).groups();
    groups.removeIf([](const QList<int>& group) { return group.isEmpty(); });
    QCOMPARE(groups.size(), 1);
    std::sort(groups.first().begin(), groups.first().end());
    QCOMPARE(groups.first(), QList<int>({1, 2, 3, 4}));
}

void TestRoomLinks::onlyRoomsThatExistTakePart()
{
    QCOMPARE(layoutText(linked({{1, 2}}).combinedRooms(3)), QStringLiteral("1+2/3"));
}

void TestRoomLinks::clearForgetsAllLinks()
{
    RoomLinks links = linked({{1, 2}});
    links.clear();
    QVERIFY(!links.isLinked({1, 2}));
    QCOMPARE(layoutText(links.combinedRooms(2)), QStringLiteral("1/2"));
}

TESSEL_TEST_MAIN(TestRoomLinks)
#include "tst_roomlinks.moc"
