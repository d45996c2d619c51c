#pragma once

#include <QStringList>
#include <QWidget>

class QTreeWidget;

/// A tree of a bare page: so many rows and columns of text, and in each row the widgets named by
/// letters: 'b' a push button, 'c' a combo box, 'e' a line edit, 'p' a painted square of 20 x 20
/// pixels, 'o' one that lies over its cell in a layout, a space none.
struct BareTree
{
    int rows = 0;
    int columns = 0;
    QString widgets;
    int pictures = 0; ///< rows whose first cell shows a 64 x 64 picture
};

/// A square picture of painted areas of one size.
struct BareGrid
{
    int cells = 0; ///< 0 = there is no picture
    int side = 0;
};

/// What a page consists of.
struct BareShape
{
    int labels = 0; ///< paragraphs that are wrapped
    BareGrid grid;
    QList<BareTree> trees;
};

/// The least that a page of this shape can be made with: its trees get all their rows first and
/// the widgets in them second, and three buttons stand below.
class BarePage : public QWidget
{
public:
    BarePage(const BareShape& shape, QWidget* parent);
};

/// A tree alone, filled in the same way.
QTreeWidget* makeBareTree(const BareTree& shape, QWidget* parent);
