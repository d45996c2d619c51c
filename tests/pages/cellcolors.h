#pragma once

#include <QColor>

class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The two colours of a cell as it stands on the screen.
struct CellColors
{
    QColor ground; ///< the colour of most pixels
    QColor text;   ///< that of most others
};

/// What the table paints for a cell, its row scrolled into sight. For the colour of the text to be
/// found the text must be drawn without smoothing (drawTextsInOneColor()), and the pointer must be
/// elsewhere, as some styles shade the cell below it.
CellColors cellColors(QTreeWidget& table, QTreeWidgetItem* row, int column);

/// Gives `widget` and all that it holds fonts without smoothing.
void drawTextsInOneColor(QWidget& widget);

/// How much one colour stands out from the other: 1 for equal ones, 21 for black on white.
double contrastOf(const QColor& one, const QColor& other);
