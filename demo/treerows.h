#pragma once

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The row whose cell in `column` reads `text`; null when there is none.
QTreeWidgetItem* findRow(const QTreeWidget* tree, int column, const QString& text);

/// The first row whose cell in `column` is not empty; null when there is none.
QTreeWidgetItem* firstRowWithText(const QTreeWidget* tree, int column);

/// The descendant with this accessible name; null when there is none.
QWidget* findByAccessibleName(const QWidget* root, const QString& name);
