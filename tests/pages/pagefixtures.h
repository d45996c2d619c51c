#pragma once

#include <QPixmap>
#include <QString>
#include <QStringList>

#include <initializer_list>

class IDocAccessor;
class QPushButton;
class QWidget;

/// What the tests of the pages put into a document, and how they find and press things.

/// Draws `count` rooms side by side, each two columns wide over the whole height of the grid.
void drawRooms(IDocAccessor& doc, int count);

/// Adds a device with firmware that every model is accepted with, placed in `room` (0 = nowhere).
void addTestDevice(IDocAccessor& doc, const QString& label, const QString& model,
                   const QString& ipAddress, int room = 0);

/// Stores a layout with a plain 64 x 64 picture.
void addTestLayout(IDocAccessor& doc, int number, const QString& roomGroup);

/// A list of texts for comparisons.
QStringList strings(std::initializer_list<const char*> texts);

/// The button of this object name below `parent`, which must exist.
QPushButton* buttonOf(const QWidget& parent, const char* name);

/// Presses and releases the left button of the mouse on it.
void press(QWidget* widget);

/// The object names of the widgets that Tab walks through below `root`, from the first on.
QStringList tabOrder(const QWidget& root);
