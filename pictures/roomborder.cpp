#include "roomborder.h"

#include "gridgeometry.h"
#include "roomgrid.h"

#include <algorithm>

namespace {

void addBorder(const RoomGrid& grid, QPoint cell, QPoint step, QList<RoomBorder>& borders)
{
    const int here = grid.at(cell);
    const int there = grid.at(cell + step);
    const RoomPair rooms = roomPair(here, there);
    const bool known = std::any_of(borders.begin(), borders.end(),
                                   [&](const RoomBorder& border) { return border.rooms == rooms; });
    if (here != 0 && there != 0 && here != there && !known) {
        borders.append({rooms, cell, step});
    }
}

} // namespace

QList<RoomBorder> firstBorders(const RoomGrid& grid)
{
    QList<RoomBorder> borders;
    for (int y = 0; y < GridGeometry::cellsPerSide; ++y) {
        for (int x = 0; x < GridGeometry::cellsPerSide; ++x) {
            addBorder(grid, {x, y}, {1, 0}, borders);
            addBorder(grid, {x, y}, {0, 1}, borders);
        }
    }
    return borders;
}
