#pragma once

#include "devicequeries.h"

#include <QHash>

/// The placed devices room by room, each room read from the document once however often it is
/// asked for: a room takes part in a combined room of every layout.
class RoomDevices
{
public:
    /// `doc` is not owned; devices moved after their room was first asked for are not noticed.
    explicit RoomDevices(IDocAccessor& doc);

    /// The devices that stand in these rooms: room by room, in document order within a room.
    QList<DeviceEntry> in(const QList<int>& rooms);

private:
    IDocAccessor* m_doc;
    QHash<int, QList<DeviceEntry>> m_devices;
};
