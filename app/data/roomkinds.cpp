#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"

#include <algorithm>

namespace {

QList<QPoint> unpackCells(const QVariant& packed)
{
    QList<QPoint> cells;
    for (const QVariant& cell : packed.toList()) {
        cells.append(cell.toPoint());
    }
    return cells;
}

auto hasNumber(int number)
{
    return [number](const RoomInfo& room) { return room.number == number; };
}

} // namespace

void RoomKinds::clear(DocumentData& doc)
{
    doc.rooms.clear();
    doc.scenes.clear();
}

bool RoomKinds::count(const DocumentData& doc, QVariantMap& data)
{
    int highest = 0;
    for (const RoomInfo& room : doc.rooms) {
        highest = std::max(highest, room.number);
    }
    data.insert(DataKey::count(), highest);
    return true;
}

bool RoomKinds::set(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::roomNumber()) || !data.contains(DataKey::positionList())) {
        return false;
    }
    const int number = data.value(DataKey::roomNumber()).toInt();
    const QList<QPoint> cells = unpackCells(data.value(DataKey::positionList()));
    const auto room = std::find_if(doc.rooms.begin(), doc.rooms.end(), hasNumber(number));
    if (room != doc.rooms.end()) {
        room->positionList = cells;
    } else {
        doc.rooms.append({number, cells});
    }
    return true;
}

bool RoomKinds::get(const DocumentData& doc, QVariantMap& data)
{
    if (!data.contains(DataKey::roomNumber())) {
        return false;
    }
    const int number = data.value(DataKey::roomNumber()).toInt();
    const auto room = std::find_if(doc.rooms.cbegin(), doc.rooms.cend(), hasNumber(number));
    if (room == doc.rooms.cend()) {
        return false;
    }
    const QList<QPoint>& cells = room->positionList;
    data.insert(DataKey::positionList(), QVariantList(cells.cbegin(), cells.cend()));
    return true;
}
