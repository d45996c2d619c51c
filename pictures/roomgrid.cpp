#include "roomgrid.h"

#include <algorithm>

namespace {

constexpr int side = GridGeometry::cellsPerSide;

} // namespace

int RoomGrid::at(QPoint cell) const
{
    return GridGeometry::contains(cell) ? m_columns[size_t(cell.x())][size_t(cell.y())] : 0;
}

void RoomGrid::set(QPoint cell, int room)
{
    if (GridGeometry::contains(cell)) {
        m_columns[size_t(cell.x())][size_t(cell.y())] = room;
    }
}

void RoomGrid::clear()
{
    m_columns = {};
}

int RoomGrid::highestRoom() const
{
    int highest = 0;
    for (const auto& column : m_columns) {
        highest = std::max(highest, *std::max_element(column.begin(), column.end()));
    }
    return highest;
}

QList<QPoint> RoomGrid::cellsOf(int room) const
{
    QList<QPoint> cells;
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            if (at({x, y}) == room) {
                cells.append({x, y});
            }
        }
    }
    return cells;
}

bool RoomGrid::touches(QPoint cell, int room) const
{
    const std::array steps{QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)};
    return std::any_of(steps.begin(), steps.end(),
                       [&](QPoint step) { return at(cell + step) == room; });
}

QList<QPoint> RoomGrid::changedCells(const RoomGrid& other) const
{
    QList<QPoint> cells;
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            if (at({x, y}) != other.at({x, y})) {
                cells.append({x, y});
            }
        }
    }
    return cells;
}

void RoomGrid::removeRoom(int room)
{
    for (const QPoint cell : cellsOf(room)) {
        set(cell, 0);
    }
    closeHole(room);
}

bool RoomGrid::closeHole(int room)
{
    if (!cellsOf(room).isEmpty()) {
        return false;
    }
    for (auto& column : m_columns) {
        for (int& number : column) {
            number -= number > room ? 1 : 0;
        }
    }
    return true;
}
