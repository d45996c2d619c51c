#include "gridgeometry.h"

QRect GridGeometry::cellRect(QPoint cell) const
{
    return {pitch() * cell.x() + gap, pitch() * cell.y() + gap, cellSize, cellSize};
}

std::optional<QPoint> GridGeometry::cellAt(QPoint position) const
{
    if (pitch() <= 0 || position.x() % pitch() < gap || position.y() % pitch() < gap) {
        return std::nullopt;
    }
    const QPoint cell(position.x() / pitch(), position.y() / pitch());
    return contains(cell) ? std::optional(cell) : std::nullopt;
}

QRect GridGeometry::cellsIn(const QRect& area) const
{
    if (pitch() <= 0) {
        return {};
    }
    const QRect touched(QPoint(area.left() / pitch(), area.top() / pitch()),
                        QPoint(area.right() / pitch(), area.bottom() / pitch()));
    return touched & QRect(0, 0, cellsPerSide, cellsPerSide);
}
