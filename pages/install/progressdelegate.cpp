#include "progressdelegate.h"

#include "contrast.h"

#include <QLinearGradient>

#include <algorithm>

namespace {

/// How much of the accent colour the bar has.
constexpr double accent = 0.4;

QColor mixed(const QColor& one, const QColor& other, double part)
{
    const auto mix = [part](float a, float b) { return float(a * (1 - part) + b * part); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// The bar's colour up to `part` of a cell from `left` to `right`, the ground's behind it.
QBrush barBrush(const QColor& bar, const QColor& ground, double part, int left, int right)
{
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setColorAt(0, bar);
    gradient.setColorAt(part, bar);
    gradient.setColorAt(std::min(1.0, part + 0.001), ground);
    gradient.setColorAt(1, part < 1 ? ground : bar);
    return gradient;
}

} // namespace

void ProgressDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    RowDelegate::initStyleOption(option, index);
    const QVariant part = index.data(partRole);
    if (!part.isValid()) {
        return;
    }
    const double done = std::clamp(part.toDouble(), 0.0, 1.0);
    QPalette& palette = option->palette;
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const QColor highlight = palette.color(QPalette::Highlight);
    const QRect& cell = option->rect;
    // Styles lay the ground from the cell's corner, and the selection from the list's.
    option->backgroundBrush =
        barBrush(readableGround(mixed(base, highlight, accent), text), base, done, 0, cell.width());
    const QColor selectedText = palette.color(QPalette::HighlightedText);
    palette.setBrush(QPalette::Highlight,
                     barBrush(readableGround(mixed(highlight, text, accent), selectedText),
                              highlight, done, cell.left(), cell.right() + 1));
}
