#include "treerows.h"

#include <QTreeWidget>

QTreeWidgetItem* findRow(const QTreeWidget* tree, int column, const QString& text)
{
    return tree ? tree->findItems(text, Qt::MatchExactly, column).value(0) : nullptr;
}

QTreeWidgetItem* firstRowWithText(const QTreeWidget* tree, int column)
{
    for (int row = 0; row < tree->topLevelItemCount(); ++row) {
        if (!tree->topLevelItem(row)->text(column).isEmpty()) {
            return tree->topLevelItem(row);
        }
    }
    return nullptr;
}

QWidget* findByAccessibleName(const QWidget* root, const QString& name)
{
    for (auto* widget : root->findChildren<QWidget*>()) {
        if (widget->accessibleName() == name) {
            return widget;
        }
    }
    return nullptr;
}
