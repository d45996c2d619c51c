#pragma once

#include "focusedcelldelegate.h"

/// Draws the rows of tables that hold small widgets: rows high enough to read and to hit, widgets
/// of a fixed size in the middle of their cell instead of its corner.
class RowDelegate : public FocusedCellDelegate
{
    Q_OBJECT

public:
    using FocusedCellDelegate::FocusedCellDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    /// A text that its cell does not show whole is its tool tip, unless it has another one.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    bool isWhole(const QStyleOptionViewItem& option, const QModelIndex& index) const;
};
