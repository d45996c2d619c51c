#pragma once

#include "gridgeometry.h"

#include <QFont>
#include <QHash>
#include <QStaticText>

class QPainter;
class RoomGrid;

/// The picture of the rooms as they were drawn: a grid of lines, each cell of a room in the room's
/// colour and with its number.
class RoomPicture
{
public:
    explicit RoomPicture(GridGeometry geometry)
        : m_geometry(geometry)
    {
    }

    const GridGeometry& geometry() const { return m_geometry; }

    /// `font`, or a smaller one whose numbers stay inside cells that are lower than its lines.
    QFont fittingFont(QFont font) const;

    /// Paints what of the picture lies in `area`, in the painter's font; the whole takes
    /// geometry().side() pixels in both directions.
    void paint(QPainter& painter, const RoomGrid& grid, const QRect& area);

private:
    void paintLines(QPainter& painter, const QRect& cells) const;
    void paintCell(QPainter& painter, QPoint cell, int room);

    GridGeometry m_geometry;
    QHash<int, QStaticText> m_numbers; ///< laid out, per room
};
