#pragma once

#include <QList>
#include <QPoint>

#include <optional>

class IDocAccessor;

/// Typed queries over the drawn rooms.

/// The highest room number present, 0 when none is drawn.
int roomCount(IDocAccessor& doc);

/// The cells of room `room`; nothing when there is no such room.
std::optional<QList<QPoint>> roomCells(IDocAccessor& doc, int room);

/// Replaces the cells of `room`, or adds the room.
void setRoomCells(IDocAccessor& doc, int room, const QList<QPoint>& cells);

/// Removes all rooms and, with them, all layouts made of them.
void clearRooms(IDocAccessor& doc);
