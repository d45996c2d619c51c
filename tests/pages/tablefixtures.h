#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

class IDocAccessor;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// How the tests of the pages that list combined rooms find and use what these show.

/// Stores a layout whose 64 x 64 picture is all of one colour.
void addColouredLayout(IDocAccessor& doc, int number, const QString& roomGroup,
                       const QColor& picture);

/// The table of this object name below `parent`, which must exist.
QTreeWidget* tableOf(const QWidget& parent, const char* name);

/// The panel that the page shows beside its list of combined rooms.
QWidget* shownPanel(const QWidget& page);

/// Clicks a row with the mouse.
void clickRow(QTreeWidget* table, int row);

/// Clicks a row of the page's list of combined rooms.
void selectGroup(const QWidget& page, int row);

/// The row whose text in this column is `text`; null when there is none.
QTreeWidgetItem* rowWith(const QTreeWidget& table, int column, const QString& text);

/// The texts of a column, from top to bottom.
QStringList columnTexts(const QTreeWidget& table, int column);

/// The colour of the picture that the page shows, invalid when it shows none.
QColor shownPicture(const QWidget& parent);
