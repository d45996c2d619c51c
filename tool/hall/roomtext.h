#pragma once

#include "records.h"

#include <QStringList>

/// The drawn rooms as eight strings of eight characters, row by row.
namespace RoomText {

inline constexpr QChar empty = u'.'; ///< a cell of no room; of a room it is the room's number

QStringList write(const QList<RoomInfo>& rooms);

/// The rooms of such strings in the order of their numbers, their cells as the wizard has them:
/// column by column, each from top to bottom. The strings are without fault().
QList<RoomInfo> read(const QStringList& rows);

/// What is wrong with the strings, the place of the row before it; empty when nothing is.
QString fault(const QStringList& rows);

} // namespace RoomText
