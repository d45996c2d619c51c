#pragma once

#include "foundjson.h"

#include <QHash>
#include <QStringList>

struct DeviceData;
struct DocumentData;

/// What a search has told about the devices of a hall. A device is known by its MAC address, so
/// that one that was exchanged is not taken for the one in the hall; where either of them has none,
/// by its address.
class DeviceFindings
{
public:
    DeviceFindings(const DocumentData& hall, const QList<FoundDevice>& found);

    /// What was found of a device of the hall; empty when nothing was.
    FoundDevice of(const DeviceData& device) const;

    /// The devices of the hall of which another one, or another address, was found, and those in
    /// rooms that did not answer or are refused; a line each.
    const QStringList& remarks() const { return m_remarks; }

    /// The addresses of what was found and is not in the hall.
    const QStringList& strangers() const { return m_strangers; }

private:
    QString remarkOn(const DeviceData& device) const;
    void findStrangers(const DocumentData& hall, const QList<FoundDevice>& found);

    QHash<QString, FoundDevice> m_byAddress;
    QHash<QString, FoundDevice> m_byMac;
    QStringList m_remarks;
    QStringList m_strangers;
};
