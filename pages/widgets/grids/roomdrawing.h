#pragma once

#include "roomgrid.h"

/// Drawing rooms on the grid: what a press, the moves after it and the release do to the cells,
/// apart from where the pointer or the cursor is.
///
/// A gesture begins on a cell, may extend as a stroke and ends; a click is one on a single cell.
class RoomDrawing
{
public:
    const RoomGrid& grid() const { return m_grid; }

    /// Writes `room` into `cells` without emptying others. Unmodified afterwards.
    void setRoom(int room, const QList<QPoint>& cells);
    /// Empties the grid and forgets the gesture's room.
    void clear();

    /// Whether anything was drawn or removed since setRoom() or clearModified().
    bool isModified() const { return m_modified; }
    void clearModified() { m_modified = false; }

    /// Decides which room the gesture draws: the one on `cell`, or a new one on an empty cell.
    /// False, with nothing changed, where that would be a room too many.
    bool begin(QPoint cell);

    /// Goes on with the stroke to `cell`. Its first cell is written whatever it held; from then
    /// on the room grows into empty cells that touch it. Without a gesture nothing happens.
    void extend(QPoint cell);

    /// The stroke is over; a further one of the same gesture begins with a first cell again.
    void liftStroke() { m_dragging = false; }

    /// A click: removes the room on `cell`, the rooms above it moving down, or puts the gesture's
    /// room there. Ends the gesture.
    void click(QPoint cell);

    /// Ends the gesture.
    void end() { m_currentRoom = 0; }

private:
    void writeFirstCell(QPoint cell);

    RoomGrid m_grid;
    int m_currentRoom = 0; ///< the room that the gesture draws; 0 for none
    bool m_dragging = false;
    bool m_modified = false;
};
