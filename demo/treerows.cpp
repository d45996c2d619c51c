#include "treerows.h"

#include <QTreeWidget>

QTreeWidgetItem* findRow(const QTreeWidget* tree, int column, const QString& text)
{
    return tree ? tree->findItems(text, Qt::MatchExactly, column).value(0) : nullptr;
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
