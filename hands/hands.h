#pragma once

#include <QAnyStringView>
#include <QList>
#include <QPoint>
#include <QString>

class QTreeWidgetItem;
class QWidget;

/// Mouse and key events sent to the windows as the window system sends them, so that disabled or
/// covered widgets stay as unreachable as they are for a person.
namespace Hands {

/// Presses and releases the left button in the middle of `widget`, or at `at`.
void click(QWidget* widget);
void click(QWidget* widget, QPoint at);

/// Clicks the button of this text, without mnemonic, below `parent`, which must exist.
void clickButton(const QWidget* parent, QAnyStringView text);

/// Presses at the first point, moves through the others, and releases at the last.
void drag(QWidget* widget, const QList<QPoint>& path);

/// Scrolls a row into sight and lets its table paint, so that what is in it can be clicked.
void reach(QTreeWidgetItem* row);

/// Clicks a row, or double-clicks its cell in the column of this header.
void clickRow(QTreeWidgetItem* row);
void doubleClick(QTreeWidgetItem* row, QAnyStringView header);

/// Opens the combo box with the mouse and picks the entry that begins with `text`.
void choose(QWidget* combo, const QString& text);

/// Types `text` into the widget that has the focus of the window of `widget`.
void type(QWidget* widget, const QString& text);

/// Clicks a text field and types `text` in place of what it holds.
void typeInto(QWidget* field, const QString& text);

/// Presses and releases one key in the window of `widget`.
void pressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace Hands
