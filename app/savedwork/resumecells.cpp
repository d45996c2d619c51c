#include "resumecells.h"

#include "records.h"

#include <QStringList>

#include <bitset>
#include <optional>

namespace {

constexpr int gridSide = RoomInfo::gridSide;
constexpr std::size_t gridSize = std::size_t(gridSide) * gridSide;

std::optional<QPoint> readCell(QStringView text)
{
    if (!text.startsWith(u'{') || !text.endsWith(u'}')) {
        return std::nullopt;
    }
    const QList<QStringView> parts = text.sliced(1).chopped(1).split(u',');
    if (parts.size() != 2) {
        return std::nullopt;
    }
    bool isColumn = false;
    bool isRow = false;
    const QPoint cell(parts.first().toInt(&isColumn), parts.last().toInt(&isRow));
    return isColumn && isRow ? std::optional(cell) : std::nullopt;
}

bool isOnGrid(QPoint cell)
{
    return cell.x() >= 0 && cell.x() < gridSide && cell.y() >= 0 && cell.y() < gridSide;
}

} // namespace

QString writeCells(const QList<QPoint>& cells)
{
    QStringList texts;
    for (const QPoint cell : cells) {
        texts.append(QStringLiteral("{%1,%2}").arg(cell.x()).arg(cell.y()));
    }
    return texts.join(QLatin1Char('/'));
}

QList<QPoint> readCells(QStringView text)
{
    QList<QPoint> cells;
    std::bitset<gridSize> taken;
    for (const QStringView piece : text.tokenize(u'/')) {
        const std::optional<QPoint> cell = readCell(piece);
        if (!cell || !isOnGrid(*cell)) {
            continue;
        }
        const auto position = std::size_t(cell->y()) * gridSide + std::size_t(cell->x());
        if (!taken.test(position)) {
            taken.set(position);
            cells.append(*cell);
        }
    }
    return cells;
}
