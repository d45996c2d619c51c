#include "layoutpicture.h"

#include "gridcolor.h"
#include "records.h"
#include "roomarea.h"
#include "roomcolor.h"

#include <QPainter>

#include <algorithm>

namespace {

QColor ownColor(int room)
{
    return roomColor(room, Qt::white);
}

} // namespace

void LayoutPicture::setRoom(int room, const QList<QPoint>& cells)
{
    for (const QPoint cell : cells) {
        m_grid.set(cell, room);
    }
    const QRegion area = roomArea(m_grid, m_geometry, room);
    m_rooms.insert(room, {roomLabelRect(area), area, ownColor(room)});
}

void LayoutPicture::clear()
{
    m_grid.clear();
    m_rooms.clear();
}

void LayoutPicture::setGroups(const QList<QList<int>>& groups)
{
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        room->color = ownColor(room.key());
    }
    for (const QList<int>& group : groups) {
        // Rooms beyond those that have a colour look like the last one that has.
        int lowest = RoomInfo::maxRooms;
        for (const int number : group) {
            lowest = std::min(lowest, number);
        }
        for (const int number : group) {
            if (m_rooms.contains(number)) {
                m_rooms[number].color = ownColor(lowest);
            }
        }
    }
}

int LayoutPicture::roomAt(QPoint position) const
{
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        if (room->area.contains(position)) {
            return room.key();
        }
    }
    return 0;
}

void LayoutPicture::paintRooms(QPainter& painter) const
{
    const QRect all(0, 0, m_geometry.side(), m_geometry.side());
    painter.fillRect(all, gridBackground);
    for (const Room& room : m_rooms) {
        painter.setClipRegion(room.area);
        painter.fillRect(all, room.color);
    }
}

void LayoutPicture::paintNumbers(QPainter& painter) const
{
    painter.setPen(Qt::white);
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        painter.setClipRegion(room->area);
        painter.drawText(room->label, Qt::AlignCenter, QString::number(room.key()));
    }
}
