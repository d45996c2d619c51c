#pragma once

#include "gridgeometry.h"

#include <QPixmap>

class LayoutPicture;

/// Where the rooms lie in the picture that layouts are made in.
inline constexpr GridGeometry layoutGeometry{.gap = 1, .cellSize = 48};

/// The rooms of a layout without their numbers, in full size; so that it is the same whatever
/// fonts there are.
QPixmap paintedRooms(const LayoutPicture& picture);

/// The small picture of such a one by which lists and saved work know a layout.
QPixmap layoutThumbnail(const QPixmap& paintedRooms);
