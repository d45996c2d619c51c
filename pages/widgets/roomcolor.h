#pragma once

#include <QColor>
#include <QStringView>

/// The colour by which a room is known on every page: rooms 1 to 4 have one each, any other
/// number gets `fallback`.
QColor roomColor(int room, const QColor& fallback);

/// The colour of a combined room, which is that of the room whose number begins `roomText`
/// ("1,2" or "1+2" is coloured as room 1); `fallback` for any other beginning.
QColor roomGroupColor(QStringView roomText, const QColor& fallback);
