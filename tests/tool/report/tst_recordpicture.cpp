#include "recordpicture.h"
#include "testcase.h"

#include <QImage>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int firstCell = 6; // behind the line around the grid
constexpr int cellPitch = 126;
const QRect aboveNumber(0, 0, 72, 10);

/// The four rooms beside each other, a cell each.
QImage drawnRooms()
{
    QList<RoomInfo> rooms;
    for (int number = 1; number <= 4; ++number) {
        RoomInfo room;
        room.number = number;
        room.positionList = {QPoint(number - 1, 0)};
        rooms.append(room);
    }
    return QImage::fromData(drawnRoomsPng(rooms), "PNG");
}

/// What stands above the number in the cell of a room.
QImage drawn(int room)
{
    return drawnRooms().copy(aboveNumber.translated(firstCell + (room - 1) * cellPitch, firstCell));
}

/// Where it is brighter than the darkest grey in it, as a copy in black and white shows it.
QString patternOf(const QImage& picture)
{
    const QImage gray = picture.convertToFormat(QImage::Format_Grayscale8);
    int darkest = 255;
    QList<int> levels;
    for (int y = 0; y < gray.height(); ++y) {
        for (int x = 0; x < gray.width(); ++x) {
            levels.append(qGray(gray.pixel(x, y)));
            darkest = std::min(darkest, levels.last());
        }
    }
    QString pattern;
    for (const int level : std::as_const(levels)) {
        pattern += level > darkest + 30 ? u'/' : u'.';
    }
    return pattern;
}

/// How far two pictures of a size are apart in the pixel in which they differ most.
int maxDifference(const QImage& one, const QImage& other)
{
    int difference = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            difference = std::max({difference, std::abs(a.red() - b.red()),
                                   std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
        }
    }
    return difference;
}

} // namespace

/// The pictures of a hall's record.
class TestRecordPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void drawnRoomsLookLikeTheirSamples_data();
    void drawnRoomsLookLikeTheirSamples();
    void drawnRoomsCanBeToldApartWithoutColours();
};

void TestRecordPicture::drawnRoomsLookLikeTheirSamples_data()
{
    QTest::addColumn<int>("room");
    for (int room = 1; room <= 4; ++room) {
        QTest::addRow("room %d", room) << room;
    }
}

void TestRecordPicture::drawnRoomsLookLikeTheirSamples()
{
    QFETCH(const int, room);
    const QImage sample = QImage::fromData(roomSamplePng(room), "PNG");
    // Lines of other lengths are rounded otherwise.
    const int difference = maxDifference(drawn(room), sample.copy(aboveNumber));
    QVERIFY2(difference < 20, qPrintable(QString::number(difference)));
}

void TestRecordPicture::drawnRoomsCanBeToldApartWithoutColours()
{
    QStringList patterns;
    for (int room = 1; room <= 4; ++room) {
        patterns.append(patternOf(drawn(room)));
    }
    QVERIFY(!patterns.first().contains(u'/'));
    QCOMPARE(patterns.removeDuplicates(), 0);
}

TESSEL_TEST_MAIN(TestRecordPicture)
#include "tst_recordpicture.moc"
