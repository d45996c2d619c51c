#pragma once

#include "gridgeometry.h"
#include "roomeditor.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

inline constexpr GridGeometry grid{2, 48};

using Cells = QList<QPoint>;

struct Editor : RoomEditor
{
    explicit Editor(bool readOnly = false)
        : RoomEditor(nullptr, grid.gap, grid.cellSize, readOnly)
    {
        show();
    }

    static QPoint center(QPoint cell) { return grid.cellRect(cell).center(); }

    void pressAt(QPoint cell) { QTest::mousePress(this, Qt::LeftButton, {}, center(cell)); }
    void moveTo(QPoint cell) { moveToPosition(center(cell)); }
    void moveToPosition(QPoint position)
    {
        QMouseEvent event(QEvent::MouseMove, position, mapToGlobal(position), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
    }
    void releaseAt(QPoint cell) { QTest::mouseRelease(this, Qt::LeftButton, {}, center(cell)); }
    void clickAt(QPoint cell) { QTest::mouseClick(this, Qt::LeftButton, {}, center(cell)); }

    /// As a hand draws: press, a first small move inside the cell, then from cell to cell.
    void stroke(const Cells& cells)
    {
        pressAt(cells.first());
        moveToPosition(center(cells.first()) + QPoint(1, 1));
        for (const QPoint cell : cells.mid(1)) {
            moveTo(cell);
        }
        const QPoint end = center(cells.last()) + QPoint(2, 2);
        QTest::mouseRelease(this, Qt::LeftButton, {}, end);
    }

    void key(Qt::Key key) { QTest::keyClick(this, key); }
    void shiftKey(Qt::Key key) { QTest::keyClick(this, key, Qt::ShiftModifier); }

    QColor pixel(QPoint position) { return grab().toImage().pixelColor(position); }

    QSignalSpy counts{this, SIGNAL(roomCountChanged(int))};
};

inline QList<int> values(const QSignalSpy& spy)
{
    QList<int> list;
    for (const QList<QVariant>& arguments : spy) {
        list.append(arguments.first().toInt());
    }
    return list;
}
