#pragma once

#include <QPoint>
#include <QString>

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The hands of the demo: mouse and key events sent to the windows as the window system sends
/// them, so that disabled or covered widgets stay as unreachable as they are for a person.
namespace DemoUser {

/// Presses and releases the left button in the middle of `widget`, or at `at`.
void click(QWidget* widget);
void click(QWidget* widget, const QPoint& at);

/// Presses at the first point, moves through the others, and releases at the last.
void drag(QWidget* widget, const QList<QPoint>& path);

/// Double-clicks the cell of `item` in `column`.
void doubleClickCell(QTreeWidget* tree, QTreeWidgetItem* item, int column);

/// Clicks a list row.
void clickRow(QTreeWidget* tree, QTreeWidgetItem* item);

/// Opens the combo box with the mouse and picks the entry that begins with `text`.
void choose(QComboBox* combo, const QString& text);

/// Types `text` into the widget that has the focus of the window of `widget`.
void type(QWidget* widget, const QString& text);

/// Presses and releases one key in the window of `widget`.
void pressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace DemoUser
