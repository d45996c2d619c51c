#include "roomdrawing.h"

#include "records.h"

void RoomDrawing::setRoom(int room, const QList<QPoint>& cells)
{
    for (const QPoint cell : cells) {
        m_grid.set(cell, room);
    }
    m_modified = false;
}

void RoomDrawing::clear()
{
    m_grid.clear();
    m_currentRoom = 0;
}

bool RoomDrawing::begin(QPoint cell)
{
    const int held = m_grid.at(cell);
    const int rooms = m_grid.highestRoom();
    if (held == 0 && rooms >= RoomInfo::maxRooms) {
        return false;
    }
    m_currentRoom = held != 0 ? held : rooms + 1;
    return true;
}

void RoomDrawing::extend(QPoint cell)
{
    if (m_currentRoom == 0) {
        return;
    }
    if (!m_dragging) {
        writeFirstCell(cell);
        m_dragging = true;
        m_modified = true;
    } else if (m_grid.at(cell) == 0 && m_grid.touches(cell, m_currentRoom)) {
        m_grid.set(cell, m_currentRoom);
        m_modified = true;
    }
}

void RoomDrawing::click(QPoint cell)
{
    if (const int held = m_grid.at(cell); held != 0) {
        m_grid.removeRoom(held);
    } else {
        m_grid.set(cell, m_currentRoom);
    }
    m_modified = true;
    end();
}

void RoomDrawing::writeFirstCell(QPoint cell)
{
    const int overwritten = m_grid.at(cell);
    m_grid.set(cell, m_currentRoom);
    // The last cell of another room may be gone with that: no number may be missing, so the rooms
    // above it move down, the stroke's own room among them.
    if (overwritten != 0 && m_grid.closeHole(overwritten) && m_currentRoom > overwritten) {
        --m_currentRoom;
    }
}
