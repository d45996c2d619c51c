#pragma once

#include "records.h"

#include <QRect>

#include <optional>

/// Where the cells of the 8 x 8 grid lie, in pixels. A gap surrounds every cell, so the first one
/// starts one gap away from the widget's edge.
struct GridGeometry
{
    static constexpr int cellsPerSide = RoomInfo::gridSide;

    /// Whether a cell lies on the grid.
    static bool contains(QPoint cell)
    {
        return cell.x() >= 0 && cell.x() < cellsPerSide && cell.y() >= 0 && cell.y() < cellsPerSide;
    }

    int gap = 0;      ///< between two cells and around the outer edge
    int cellSize = 0; ///< side of one cell

    /// From one cell to the next.
    int pitch() const { return gap + cellSize; }

    /// Side of the whole grid.
    int side() const { return gap * (cellsPerSide + 1) + cellSize * cellsPerSide; }

    /// The square of a cell (x = column, y = row, from 0).
    QRect cellRect(QPoint cell) const;

    /// The cell at a position; nothing on a gap line or beyond the grid.
    std::optional<QPoint> cellAt(QPoint position) const;

    /// The cells, as a block of columns and rows, that `area` or the gap before it touches.
    QRect cellsIn(const QRect& area) const;
};
