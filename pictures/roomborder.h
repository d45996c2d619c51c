#pragma once

#include "roomlinks.h"

#include <QList>
#include <QPoint>

class RoomGrid;

/// Where two rooms touch: between `cell` and the next cell in the direction of `step`, which is
/// one to the right, (1, 0), or one down, (0, 1).
struct RoomBorder
{
    RoomPair rooms;
    QPoint cell;
    QPoint step;
};

/// One border for each pair of rooms that touch: the first one met row by row from left to right,
/// the right side of a cell before its lower side.
QList<RoomBorder> firstBorders(const RoomGrid& grid);
