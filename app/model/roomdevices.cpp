#include "roomdevices.h"

#include <QSet>

RoomDevices::RoomDevices(IDocAccessor* doc)
    : m_doc(doc)
{
}

QList<DeviceEntry> RoomDevices::in(const QList<int>& rooms)
{
    auto found = m_byRooms.find(rooms);
    if (found == m_byRooms.end()) {
        found = m_byRooms.insert(rooms, gather(rooms));
    }
    return *found;
}

QList<DeviceEntry> RoomDevices::gather(const QList<int>& rooms)
{
    QList<DeviceEntry> devices;
    QSet<QString> addresses;
    for (const int room : rooms) {
        if (!m_byRoom.contains(room)) {
            m_byRoom.insert(room, devicesInRoom(*m_doc, room));
        }
        for (const DeviceEntry& device : std::as_const(m_byRoom[room])) {
            if (!addresses.contains(device.ipAddress)) {
                addresses.insert(device.ipAddress);
                devices.append(device);
            }
        }
    }
    return devices;
}
