#include "roomarea.h"

#include "gridgeometry.h"
#include "roomgrid.h"

namespace {

/// A cell of `room` with the gaps to its neighbours of the same room above and to the left.
QRegion cellArea(const RoomGrid& grid, const GridGeometry& geometry, QPoint cell, int room)
{
    const QRect square = geometry.cellRect(cell);
    const int gap = geometry.gap;
    const bool left = grid.at(cell + QPoint(-1, 0)) == room;
    const bool above = grid.at(cell + QPoint(0, -1)) == room;
    QRegion area(square);
    if (left) {
        area += QRect(square.x() - gap, square.y(), gap, square.height());
    }
    if (above) {
        area += QRect(square.x(), square.y() - gap, square.width(), gap);
    }
    if (left && above && grid.at(cell + QPoint(-1, -1)) == room) {
        area += QRect(square.x() - gap, square.y() - gap, gap, gap);
    }
    return area;
}

} // namespace

QRegion roomArea(const RoomGrid& grid, const GridGeometry& geometry, int room)
{
    QRegion area;
    for (int y = 0; y < GridGeometry::cellsPerSide; ++y) {
        for (int x = 0; x < GridGeometry::cellsPerSide; ++x) {
            if (grid.at({x, y}) == room) {
                area += cellArea(grid, geometry, {x, y}, room);
            }
        }
    }
    return area;
}

QRect roomLabelRect(const QRegion& area)
{
    QRect label;
    int bestArea = 0;
    int bestWidth = 0;
    for (const QRect& rect : area) {
        const int rectArea = rect.height() * rect.width();
        // Both must grow: a tall narrow part does not take the label from a wide one.
        if (rectArea > bestArea && rect.width() > bestWidth) {
            label = rect;
            bestArea = rectArea;
            bestWidth = rect.width();
        }
    }
    return label;
}
