#pragma once

#include "focusmark.h"
#include "roomdrawing.h"
#include "roompicture.h"

#include <QWidget>

/// The 8 x 8 grid on which the rooms of the hall are drawn; read-only it is a picture of them.
///
/// A click on an empty cell makes a room of it, up to four; a stroke with a button held grows the
/// room it began in, cell by cell along its edges and never over other rooms; a click on a cell of
/// a room removes that room, and the rooms above it move down: room numbers have no holes.
///
/// On the keyboard the arrows move a cell cursor, Space is a click on its cell, and Shift with an
/// arrow is a stroke that lasts until Shift is released.
class RoomEditor : public QWidget
{
    Q_OBJECT

public:
    /// `gap` and `cellSize` in pixels; the widget has a fixed size of 9 gaps and 8 cells. Read-only
    /// it ignores mouse and keyboard and takes no focus.
    RoomEditor(QWidget* parent, int gap, int cellSize, bool readOnly);

    /// Draws the grid larger or smaller; a number that a cell has no room for gets a smaller font.
    void setCellSize(int cellSize);

    /// Writes `room` into `cells` (x = column, y = row; cells off the grid are left out), without
    /// emptying others. The drawing counts as unmodified afterwards.
    void setRoom(int room, const QList<QPoint>& cells);

    /// The cells of a room, column by column, each from top to bottom.
    QList<QPoint> cellsOf(int room) const { return m_drawing.grid().cellsOf(room); }

    /// The highest room number.
    int roomCount() const { return m_drawing.grid().highestRoom(); }

    /// Empties the grid; whether the drawing counts as modified stays as it is.
    void clear();

    /// Whether anything was drawn or removed since setRoom() or clearModified().
    bool isModified() const { return m_drawing.isModified(); }
    void clearModified() { m_drawing.clearModified(); }

Q_SIGNALS:
    /// After an edit that changed the number of rooms; after setRoom() and clear() always.
    void roomCountChanged(int count);

    /// A gesture would have drawn a room too many; nothing was drawn.
    void roomRefused();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showChanges(const RoomGrid& before);
    bool begin(QPoint cell);
    void endGesture();

    void clickAtCursor();
    void moveCursor(QPoint step, bool stroke);
    void strokeTo(QPoint cell);
    void endKeyStroke();
    void setCursorCell(QPoint cell);
    void describeCursor();

    void updateCell(QPoint cell);

    const GridGeometry& geometry() const { return m_picture.geometry(); }

    RoomPicture m_picture;
    bool m_readOnly;
    RoomDrawing m_drawing;
    QPoint m_pressPosition; ///< noPosition while no press is pending
    bool m_keyStroke = false;
    QPoint m_cursor;
    FocusMark m_focusMark;
};
