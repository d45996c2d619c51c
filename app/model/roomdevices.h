#pragma once

#include "devicequeries.h"

#include <QHash>

/// The placed devices of combined rooms. Each room is read from the document once and each
/// combination put together once, however often it is asked for: a room takes part in a combined
/// room of every layout.
class RoomDevices
{
public:
    /// `doc` is not owned; devices moved after their room was first asked for are not noticed.
    explicit RoomDevices(IDocAccessor* doc);

    /// The devices that stand in these rooms: room by room, in document order within a room. A
    /// device is known by its address and comes once, however often it was handed over.
    QList<DeviceEntry> in(const QList<int>& rooms);

private:
    QList<DeviceEntry> gather(const QList<int>& rooms);

    IDocAccessor* m_doc;
    QHash<int, QList<DeviceEntry>> m_byRoom;
    QHash<QList<int>, QList<DeviceEntry>> m_byRooms;
};
