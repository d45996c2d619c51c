#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of a list as the desktop does and, in the dark, a frame around the one that the
/// keyboard has come to. Styles mark it in a shade of the selection, which the dark swallows; where
/// its row is selected, the selection itself is the mark.
class FocusedCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
