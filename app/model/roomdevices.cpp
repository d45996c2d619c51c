#include "roomdevices.h"

RoomDevices::RoomDevices(IDocAccessor& doc)
    : m_doc(&doc)
{
}

QList<DeviceEntry> RoomDevices::in(const QList<int>& rooms)
{
    QList<DeviceEntry> devices;
    for (const int room : rooms) {
        auto found = m_devices.find(room);
        if (found == m_devices.end()) {
            found = m_devices.insert(room, devicesInRoom(*m_doc, room));
        }
        devices.append(*found);
    }
    return devices;
}
