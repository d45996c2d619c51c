// One stroke over all 64 cells of the room grid, each move painted before the next, beside a bare
// widget that paints the 64 cells one after the other.

#include "benchpair.h"
#include "benchrows.h"
#include "roomeditor.h"
#include "stopwatch.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int cells = 64;
constexpr int perRow = 8;
constexpr int gap = 2;
constexpr int cellSize = 48;
constexpr int pitch = gap + cellSize;

// To and fro, so that each cell lies beside the one before it.
QPoint cellAt(int index)
{
    const int row = index / perRow;
    const int column = index % perRow;
    return {row % 2 == 0 ? column : perRow - 1 - column, row};
}

QRect squareOf(int index)
{
    return {cellAt(index) * pitch + QPoint(gap, gap), QSize(cellSize, cellSize)};
}

// The bare widget: a coloured square with a number per cell.
class BareGrid : public QWidget
{
public:
    BareGrid() { setAttribute(Qt::WA_OpaquePaintEvent); }
    QRect cell;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(cell, QColor(0xB0, 0x68, 0x00));
        painter.setPen(Qt::white);
        painter.drawText(cell, Qt::AlignCenter, QStringLiteral("1"));
    }
};

void show(QWidget& widget)
{
    widget.resize(pitch * perRow + gap, pitch * perRow + gap);
    widget.show();
    QApplication::processEvents();
}

void send(QWidget& widget, QEvent::Type type, const QPoint& at)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void draw(Stopwatch& watch)
{
    RoomEditor editor(nullptr, gap, cellSize, false);
    show(editor);
    send(editor, QEvent::MouseButtonPress, squareOf(0).center());
    watch.start();
    for (int index = 0; index < cells; ++index) {
        send(editor, QEvent::MouseMove, squareOf(index).center());
        QApplication::processEvents();
    }
    watch.stop();
    Q_ASSERT(editor.cellsOf(1).size() == cells);
}

void paintCells(Stopwatch& watch)
{
    BareGrid grid;
    show(grid);
    watch.start();
    for (int index = 0; index < cells; ++index) {
        grid.cell = squareOf(index);
        grid.update(grid.cell);
        QApplication::processEvents();
    }
    watch.stop();
}

} // namespace

void registerStroke()
{
    registerPair(QStringLiteral("stroke"), 60, paintCells, draw);
}
