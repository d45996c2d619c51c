#pragma once

#include "records.h"

#include <optional>

class IDocAccessor;

/// Typed queries over the drawn rooms.

/// The highest room number present, 0 when none is drawn.
int roomCount(IDocAccessor& doc);

/// The cells of room `room`; nothing when there is no such room.
std::optional<QList<QPoint>> roomCells(IDocAccessor& doc, int room);

/// The rooms in the order of their numbers; a number without a record is left out.
QList<RoomInfo> drawnRooms(IDocAccessor& doc);

/// Replaces the cells of `room`, or adds the room.
void setRoomCells(IDocAccessor& doc, int room, const QList<QPoint>& cells);

/// Removes all rooms and, with them, all layouts made of them.
void clearRooms(IDocAccessor& doc);
