#include "rowdelegate.h"

#include "fontscale.h"
#include "plaintooltip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace {

constexpr int minRowHeight = 26;

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return FocusedCellDelegate::sizeHint(option, index)
        .expandedTo({0, option.widget ? scaledToFont(minRowHeight, option.widget) : minRowHeight});
}

void RowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                       const QModelIndex& /*index*/) const
{
    // One pixel of air keeps the widgets of neighbouring rows apart.
    const QSize cell = option.rect.size() - QSize(0, 2);
    QRect place(QPoint(), cell.boundedTo(editor->maximumSize()));
    place.moveCenter(option.rect.center());
    editor->setGeometry(place);
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const QString given = index.data(Qt::ToolTipRole).toString();
    const QString tip = given.isEmpty() ? text : given;
    if (event->type() != QEvent::ToolTip || (tip == text && isWhole(option, index))) {
        QToolTip::hideText();
        return false;
    }
    QToolTip::showText(event->globalPos(), plainToolTip(tip), view, option.rect);
    return true;
}

/// Whether the cell shows all of its text.
bool RowDelegate::isWhole(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QStyle* style = shown.widget->style();
    const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &shown, shown.widget) + 1;
    return shown.text == index.data(Qt::DisplayRole).toString() &&
           shown.fontMetrics.horizontalAdvance(shown.text) <= room.width() - 2 * margin;
}
