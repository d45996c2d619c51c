#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of a list as the desktop does and a frame around the one that the keyboard has
/// come to, in the dark and in selected rows. Styles mark it in a shade of the selection, which
/// neither of them lets be seen.
///
/// A row stays in the colours of a selection while the keyboard is elsewhere on desktops that would
/// take them from it: what the page shows beside the list is that of this row.
class FocusedCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
