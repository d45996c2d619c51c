#pragma once

#include <QVariantMap>

struct DocumentData;

/// The drawn rooms.
namespace RoomKinds {

/// Removes all rooms and, with them, all layouts made of them.
void clear(DocumentData& doc);

/// Puts the highest room number, 0 without rooms.
bool count(const DocumentData& doc, QVariantMap& data);

/// Replaces the cells of a room or adds the room.
bool set(DocumentData& doc, const QVariantMap& data);

bool get(const DocumentData& doc, QVariantMap& data);

} // namespace RoomKinds
