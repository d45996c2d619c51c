#pragma once

#include "gridgeometry.h"

#include <QList>
#include <QPoint>

#include <array>

/// Which room each cell of the 8 x 8 grid belongs to; 0 for none. Cells are points with
/// x = column and y = row. Cells off the grid hold no room and take none.
class RoomGrid
{
public:
    int at(QPoint cell) const;
    void set(QPoint cell, int room);
    void clear();

    /// The highest room number, which is the number of rooms as long as none is missing.
    int highestRoom() const;

    /// The cells of a room, column by column, each from top to bottom.
    QList<QPoint> cellsOf(int room) const;

    /// Whether one of the four cells beside `cell` holds `room`.
    bool touches(QPoint cell, int room) const;

    /// The cells that hold something else than in `other`.
    QList<QPoint> changedCells(const RoomGrid& other) const;

    /// Empties the cells of a room and moves the rooms above it down by one.
    void removeRoom(int room);

    /// Moves the rooms above `room` down by one if no cell holds `room` any more; tells whether.
    bool closeHole(int room);

private:
    std::array<std::array<int, GridGeometry::cellsPerSide>, GridGeometry::cellsPerSide> m_columns{};
};
