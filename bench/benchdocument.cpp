#include "benchdocument.h"

#include "devicequeries.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "setqueries.h"

#include <QStringList>

namespace {

constexpr int rooms = 4;
constexpr int rowsOfGrid = 8;
constexpr int columnsPerRoom = 2;
constexpr int thumbnailSide = 64;

QString modelOf(int device, const HallSize& size)
{
    static const QStringList peripherals{QStringLiteral("PX-DL5"), QStringLiteral("PX-BK8"),
                                         QStringLiteral("LQA4-08S"), QStringLiteral("DSK4M")};
    return device < size.hubs ? QStringLiteral("PX-HB")
                              : peripherals.at(device % peripherals.size());
}

FoundDevice found(int device, const HallSize& size)
{
    const QString number = QStringLiteral("%1").arg(device, 4, 16, QLatin1Char('0')).toUpper();
    const QString mac = QStringLiteral("02:00:00:00:") + number.left(2) + u':' + number.right(2);
    return {QStringLiteral("Device-%1").arg(device),
            modelOf(device, size),
            QStringLiteral("2.1.0"),
            benchAddress(device),
            mac,
            QStringLiteral("QNFL"),
            {}};
}

int roomOf(int device)
{
    return device % rooms + 1;
}

void drawRooms(IDocAccessor& doc)
{
    for (int room = 1; room <= rooms; ++room) {
        QList<QPoint> cells;
        for (int cell = 0; cell < columnsPerRoom * rowsOfGrid; ++cell) {
            cells.append({(room - 1) * columnsPerRoom + cell / rowsOfGrid, cell % rowsOfGrid});
        }
        setRoomCells(doc, room, cells);
    }
}

void addLayoutWithSets(IDocAccessor& doc, int layout, int devices)
{
    QPixmap thumbnail(thumbnailSide, thumbnailSide);
    thumbnail.fill(Qt::darkGray);
    addLayout(doc, {layout, QStringLiteral("1/2/3/4"), thumbnail});
    for (int room = 1; room <= rooms; ++room) {
        const int set = (layout - 1) * rooms + room;
        addPreset(doc, set, layout, QStringLiteral("Layout %1, room %2").arg(layout).arg(room));
        for (int device = room - 1; device < devices; device += rooms) {
            addToDeviceSet(doc, set, layout, benchAddress(device), false);
        }
    }
}

} // namespace

void fillDocument(IDocAccessor& doc, const HallSize& size)
{
    drawRooms(doc);
    const int devices = size.hubs + size.peripherals;
    for (int device = 0; device < devices; ++device) {
        addDevice(doc, found(device, size));
        setDeviceRoom(doc, benchAddress(device), roomOf(device));
        // A changed label makes the preset files as long as they can be.
        setDeviceLabel(doc, benchAddress(device), QStringLiteral("Renamed-%1").arg(device));
    }
    for (int layout = 1; layout <= size.layouts; ++layout) {
        addLayoutWithSets(doc, layout, devices);
    }
}

QString benchAddress(int device)
{
    return QStringLiteral("127.90.%1.%2").arg(device / 200 + 1).arg(device % 200 + 1);
}
