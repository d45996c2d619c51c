#include "roomqueries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

int roomCount(IDocAccessor& doc)
{
    QVariantMap data;
    doc.getData(DataKind::RoomCount, data);
    return data.value(DataKey::count()).toInt();
}

std::optional<QList<QPoint>> roomCells(IDocAccessor& doc, int room)
{
    QVariantMap data{{DataKey::roomNumber(), room}};
    if (!doc.getData(DataKind::RoomInfo, data)) {
        return std::nullopt;
    }
    QList<QPoint> cells;
    for (const QVariant& cell : data.value(DataKey::positionList()).toList()) {
        cells.append(cell.toPoint());
    }
    return cells;
}

QList<RoomInfo> drawnRooms(IDocAccessor& doc)
{
    QList<RoomInfo> rooms;
    const int count = roomCount(doc);
    for (int room = 1; room <= count; ++room) {
        if (const auto cells = roomCells(doc, room)) {
            rooms.append({room, *cells});
        }
    }
    return rooms;
}

void setRoomCells(IDocAccessor& doc, int room, const QList<QPoint>& cells)
{
    const QVariantList packed(cells.cbegin(), cells.cend());
    doc.setData(DataKind::RoomInfo,
                {{DataKey::roomNumber(), room}, {DataKey::positionList(), packed}});
}

void clearRooms(IDocAccessor& doc)
{
    doc.clearData(DataKind::Room);
}
