#include "roomcolor.h"
#include "testcase.h"

#include <QTest>

class TestRoomColor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRoomHasItsColour_data();
    void everyRoomHasItsColour();
};

void TestRoomColor::everyRoomHasItsColour_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<QColor>("color");
    QTest::newRow("room 1") << 1 << QColor(0xB0, 0x68, 0x00);
    QTest::newRow("room 2") << 2 << QColor(0x44, 0x84, 0x47);
    QTest::newRow("room 3") << 3 << QColor(0x14, 0x5C, 0x97);
    QTest::newRow("room 4") << 4 << QColor(0xA2, 0x1E, 0x0E);
    QTest::newRow("no room") << 0 << QColor(Qt::cyan);
    QTest::newRow("a room too many") << 5 << QColor(Qt::cyan);
    QTest::newRow("negative") << -1 << QColor(Qt::cyan);
}

void TestRoomColor::everyRoomHasItsColour()
{
    QFETCH(const int, room);
    QFETCH(const QColor, color);
    QCOMPARE(roomColor(room, Qt::cyan), color);
}

TESSEL_TEST_MAIN(TestRoomColor)
#include "tst_roomcolor.moc"
