#pragma once

#include <QAnyStringView>
#include <QStringList>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The eyes of whoever uses the wizard from outside: widgets go by their object names, columns by
/// their headers, and what has neither by its accessible name. Something that must be there and is
/// not ends the program and is named.

/// The wizard's window once it is visible; null before.
QWidget* wizardWindow();

/// The page that a window shows.
QWidget* shownPage(const QWidget& window);

/// The panel that a page shows beside its list of combined rooms.
QWidget* shownPanel(const QWidget& page);

/// The widget of this object name below `parent`, which must exist.
QWidget* widgetOf(const QWidget& parent, QAnyStringView name);
/// The same for a button, and for a table or list: where several have the name, the visible one.
QPushButton* buttonOf(const QWidget& parent, QAnyStringView name);
QTreeWidget* tableOf(const QWidget& parent, QAnyStringView name);

/// The button of this text, without mnemonic, below `parent`; null when there is none.
QWidget* buttonWithText(const QWidget& parent, QAnyStringView text);

/// The widget below `parent` whose accessible name begins so; null when there is none.
QWidget* namedWidget(const QWidget& parent, QAnyStringView beginning);

/// The first column with this header, which must exist.
int columnOf(const QTreeWidget& table, QAnyStringView header);

/// The row whose text in this column is `text`; null when there is none.
QTreeWidgetItem* rowWith(const QTreeWidget& table, QAnyStringView header, const QString& text);

/// The texts of a column, from top to bottom.
QStringList columnTexts(const QTreeWidget& table, QAnyStringView header);

/// The text of a row in this column.
QString textIn(const QTreeWidgetItem& row, QAnyStringView header);

/// The widget of a row in this column, which must exist.
QWidget* widgetIn(QTreeWidgetItem* row, QAnyStringView header);

/// The widget of a row, or below one of them, whose accessible name begins so; null when there is
/// none.
QWidget* namedWidgetIn(QTreeWidgetItem* row, QAnyStringView beginning);
