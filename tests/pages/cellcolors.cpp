#include "cellcolors.h"

#include <QHash>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr int focusFrame = 2;

QRgb mostFrequent(const QHash<QRgb, int>& counts)
{
    return std::max_element(
               counts.keyValueBegin(), counts.keyValueEnd(),
               [](const auto& one, const auto& other) { return one.second < other.second; })
        ->first;
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

CellColors cellColors(QTreeWidget& table, QTreeWidgetItem* row, int column)
{
    table.scrollToItem(row);
    const QRect cell = table.visualRect(table.indexFromItem(row, column))
                           .adjusted(focusFrame, focusFrame, -focusFrame, -focusFrame);
    const QImage image = table.viewport()->grab(cell).toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const QRgb ground = mostFrequent(counts);
    counts.remove(ground);
    return {QColor(ground), counts.isEmpty() ? QColor() : QColor(mostFrequent(counts))};
}

void drawTextsInOneColor(QWidget& widget)
{
    QFont font = widget.font();
    font.setStyleStrategy(QFont::NoAntialias);
    widget.setFont(font);
}

double contrastOf(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}
