#pragma once

#include <QColor>

/// The colour by which a room is known on every page: rooms 1 to 4 have one each, any other
/// number gets `fallback`.
QColor roomColor(int room, const QColor& fallback);
