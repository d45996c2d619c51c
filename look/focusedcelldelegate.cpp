#include "focusedcelldelegate.h"

#include "contrast.h"
#include "frame.h"

namespace {

/// Stands out from what lies behind the cell, in the colour of its texts where that does.
QColor markColor(const QStyleOptionViewItem& shown)
{
    if (shown.state & QStyle::State_Selected) {
        return readableGray(shown.palette.color(QPalette::HighlightedText),
                            shown.palette.color(QPalette::Highlight));
    }
    const bool hasGround = shown.backgroundBrush.style() != Qt::NoBrush;
    return readableGray(shown.palette.color(QPalette::Text),
                        hasGround ? shown.backgroundBrush.color()
                                  : shown.palette.color(QPalette::Base));
}

/// Whether selected rows look as all others do while the keyboard is elsewhere.
bool palesSelections(const QPalette& palette)
{
    return contrast(palette.color(QPalette::Inactive, QPalette::Highlight),
                    palette.color(QPalette::Inactive, QPalette::Base)) < groundContrast;
}

} // namespace

void FocusedCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!(option.state & QStyle::State_HasFocus)) {
        return;
    }
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    if (isDark(option.palette) || (option.state & QStyle::State_Selected)) {
        fillFrame(*painter, option.rect, markColor(shown));
    }
}

void FocusedCellDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (palesSelections(option->palette)) {
        option->state |= QStyle::State_Active;
    }
}
