#include "showntexts.h"

#include "contrast.h"

#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

constexpr int frame = 3;

QRect placeIn(const QWidget& window, const QWidget& widget, const QRect& rect)
{
    const QRect seen = widget.visibleRegion().boundingRect() & rect;
    return {widget.mapTo(&window, seen.topLeft()), seen.size()};
}

QRect inner(const QWidget& widget)
{
    return widget.rect().adjusted(frame, frame, -frame, -frame);
}

double neededInCell(const QTreeWidget& table, const QModelIndex& cell)
{
    const QPalette& palette = table.palette();
    const QBrush given = cell.data(Qt::ForegroundRole).value<QBrush>();
    const QBrush ground = cell.data(Qt::BackgroundRole).value<QBrush>();
    if (ground.style() != Qt::NoBrush) {
        return contrast(given.color(), ground.color()); // a room's number on its colour
    }
    if (given.color() == QColor(Qt::darkGray)) {
        return readableContrast; // a removed device
    }
    const bool selected = table.selectionModel()->isSelected(cell);
    if (given.color() == QColor(Qt::red)) {
        return selected ? textContrast
                        : contrast(Qt::red, palette.color(QPalette::Base)); // too many devices
    }
    const auto [text, behind] = selected ? std::pair(QPalette::HighlightedText, QPalette::Highlight)
                                         : std::pair(QPalette::Text, QPalette::Base);
    return std::min(textContrast, contrast(palette.color(text), palette.color(behind)));
}

void addCells(QList<ShownText>& texts, const QTreeWidget& table, const QWidget& window)
{
    const QAbstractItemModel& model = *table.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            const QString text = cell.data().toString();
            const QRect place = placeIn(
                window, *table.viewport(),
                table.visualRect(cell).adjusted(frame - 1, frame - 1, 1 - frame, 1 - frame));
            if (!text.isEmpty() && !place.isEmpty() && !table.indexWidget(cell)) {
                texts.append({text, place, neededInCell(table, cell)});
            }
        }
    }
}

void addTitles(QList<ShownText>& texts, const QTreeWidget& table, const QWidget& window)
{
    const QHeaderView& header = *table.header();
    for (int column = 0; column < header.count(); ++column) {
        const QString text = table.headerItem()->text(column);
        const QRect section(header.sectionViewportPosition(column), frame,
                            header.sectionSize(column) - frame, header.height() - 2 * frame);
        const QRect place = placeIn(window, *header.viewport(), section);
        if (!text.isEmpty() && !place.isEmpty()) {
            texts.append({text, place, textContrast});
        }
    }
}

QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text().trimmed();
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
        return button->text();
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return field->text();
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    return {};
}

/// 0 where the widget shows neither a text nor an icon.
double neededIn(const QWidget& widget)
{
    if (widget.inherits("RemoveButton") || !textOf(widget).isEmpty()) {
        return textContrast;
    }
    return widget.inherits("SvgButton") || widget.inherits("IdentifyButton") ? readableContrast : 0;
}

} // namespace

QList<ShownText> tableTexts(const QTreeWidget& table, const QWidget& window)
{
    QList<ShownText> texts;
    addTitles(texts, table, window);
    addCells(texts, table, window);
    return texts;
}

QList<ShownText> shownTexts(const QWidget& window)
{
    QList<ShownText> texts;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        const QRect place = placeIn(window, *widget, inner(*widget));
        if (!widget->isVisible() || !widget->isEnabled() || place.isEmpty()) {
            continue;
        }
        if (const auto* table = qobject_cast<const QTreeWidget*>(widget)) {
            texts += tableTexts(*table, window);
        } else if (const double needed = neededIn(*widget); needed > 0) {
            const QString name = textOf(*widget) + QLatin1String(widget->metaObject()->className());
            texts.append({name, place, needed});
        }
    }
    return texts;
}

ShownColors shownColors(const QImage& picture, const QRect& place)
{
    QHash<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto isFewer = [](const auto& one, const auto& other) {
        return one.second < other.second;
    };
    const QColor ground(
        std::max_element(counts.keyValueBegin(), counts.keyValueEnd(), isFewer)->first);
    QColor text = ground;
    for (auto count = counts.keyBegin(); count != counts.keyEnd(); ++count) {
        if (contrast(QColor(*count), ground) > contrast(text, ground)) {
            text = QColor(*count);
        }
    }
    return {ground, text};
}

double shownContrast(const QImage& picture, const QRect& place)
{
    const auto [ground, text] = shownColors(picture, place);
    return contrast(ground, text);
}
