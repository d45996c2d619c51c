#pragma once

#include "records.h"

#include <QHash>

/// The device set records in the order in which they were stored. A device is at most once in a
/// set of a layout. With 250 devices in ten layouts there are thousands of records and pages ask
/// for them one by one, so both ways of asking cost the same however many there are.
class DeviceSetRecords
{
public:
    /// Adds a record; false when the device is in that set of that layout already.
    bool append(const DeviceSetInfo& record);

    void clear();

    bool isEmpty() const;
    const QList<DeviceSetInfo>& all() const;

    /// The record of a device in a set of a layout; null when there is none.
    const DeviceSetInfo* find(int deviceSet, int scene, const QString& ipAddress) const;

    /// The same for changing whether the device is removed and where it stands. Valid until the
    /// next append().
    DeviceSetInfo* find(int deviceSet, int scene, const QString& ipAddress);

    /// The first record of a device in a layout, in whatever set; null when there is none.
    const DeviceSetInfo* firstInLayout(int scene, const QString& ipAddress) const;

private:
    using Membership = std::pair<std::pair<int, int>, QString>;
    using Placement = std::pair<int, QString>;

    QList<DeviceSetInfo> m_records;
    QHash<Membership, qsizetype> m_byMembership;
    QHash<Placement, qsizetype> m_firstByPlacement;
};
