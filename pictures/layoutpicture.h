#pragma once

#include "gridgeometry.h"
#include "roomgrid.h"

#include <QColor>
#include <QMap>
#include <QRegion>

class QPainter;

/// The picture of one layout: each room a solid area with its number, all rooms of a combined room
/// in the colour of the lowest one.
class LayoutPicture
{
public:
    struct Room
    {
        QRect label;  ///< where the number is written
        QRegion area; ///< the cells and the gaps between them
        QColor color;
    };

    explicit LayoutPicture(GridGeometry geometry)
        : m_geometry(geometry)
    {
    }

    const GridGeometry& geometry() const { return m_geometry; }
    const RoomGrid& grid() const { return m_grid; }
    const QMap<int, Room>& rooms() const { return m_rooms; }

    /// Gives `cells` (x = column, y = row; cells off the grid are left out) to `room`, which gets
    /// its own colour.
    void setRoom(int room, const QList<QPoint>& cells);

    /// Removes all rooms.
    void clear();

    /// Colours every room as a member of its group, or by itself if it is in none.
    void setGroups(const QList<QList<int>>& groups);

    /// The first room whose area holds the position; 0 for none.
    int roomAt(QPoint position) const;

    /// The rooms on the ground, without numbers. Takes geometry().side() pixels in both directions
    /// and leaves a clip behind.
    void paintRooms(QPainter& painter) const;

    /// The numbers, in the painter's font. Leaves a clip behind.
    void paintNumbers(QPainter& painter) const;

private:
    GridGeometry m_geometry;
    RoomGrid m_grid;
    QMap<int, Room> m_rooms;
};
