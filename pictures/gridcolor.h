#pragma once

#include <QColor>

/// The ground of both grid widgets, wherever there is no room.
inline constexpr QColor gridBackground{0x34, 0x34, 0x34};
