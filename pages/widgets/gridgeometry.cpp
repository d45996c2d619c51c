#include "gridgeometry.h"

QRect GridGeometry::cellRect(QPoint cell) const
{
    return {pitch() * cell.x() + gap, pitch() * cell.y() + gap, cellSize, cellSize};
}

std::optional<QPoint> GridGeometry::cellAt(QPoint position) const
{
    const int farEdge = pitch() * cellsPerSide;
    if (pitch() <= 0 || position.x() > farEdge || position.y() > farEdge) {
        return std::nullopt;
    }
    if (position.x() % pitch() < gap || position.y() % pitch() < gap) {
        return std::nullopt;
    }
    return QPoint(position.x() / pitch(), position.y() / pitch());
}
