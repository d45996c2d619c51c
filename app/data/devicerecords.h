#pragma once

#include "records.h"

#include <QHash>

/// The device records in the order in which they were found, searchable by address at constant
/// cost: pages ask for one device after the other. Addresses may repeat; the first one counts.
class DeviceRecords
{
public:
    void append(DeviceData device);

    qsizetype size() const;
    const QList<DeviceData>& all() const;

    /// The first device with exactly this address; null when there is none.
    const DeviceData* find(const QString& ipAddress) const;

    /// The same for changing any field but the address. Valid until the next append().
    DeviceData* find(const QString& ipAddress);

    /// The first device that is the same piece of hardware: address, MAC address and model equal.
    /// The latter two are given as a saved file has them, without what XML cannot carry.
    DeviceData* find(const QString& ipAddress, const QString& macAddress, const QString& modelName);

private:
    QList<DeviceData> m_devices;
    QHash<QString, qsizetype> m_firstByAddress;
};
