#pragma once

#include <QStyledItemDelegate>

/// Draws the rows of tables that hold small widgets: rows high enough to read and to hit, widgets
/// of a fixed size in the middle of their cell instead of its corner.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};
