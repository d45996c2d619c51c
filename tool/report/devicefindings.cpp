#include "devicefindings.h"

#include "documentdata.h"
#include "hallhubs.h"

#include <QSet>

namespace {

bool isSame(const DeviceData& device, const FoundDevice& found)
{
    return device.macAddress.compare(found.macAddress, Qt::CaseInsensitive) == 0;
}

} // namespace

DeviceFindings::DeviceFindings(const DocumentData& hall, const QList<FoundDevice>& found)
{
    for (const FoundDevice& device : found) {
        if (!m_byAddress.contains(device.address)) {
            m_byAddress.insert(device.address, device);
        }
        const QString mac = device.macAddress.toUpper();
        if (!mac.isEmpty() && !m_byMac.contains(mac)) {
            m_byMac.insert(mac, device);
        }
    }
    for (const DeviceData& device : hall.devices.all()) {
        const QString remark = remarkOn(device);
        if (!remark.isEmpty()) {
            m_remarks.append(remark);
        }
    }
    findStrangers(hall, found);
}

FoundDevice DeviceFindings::of(const DeviceData& device) const
{
    FoundDevice there = m_byAddress.value(device.ipAddress);
    const bool isEitherUnknown = device.macAddress.isEmpty() || there.macAddress.isEmpty();
    if (!there.address.isEmpty() && isSame(device, there)) {
        return there;
    }
    FoundDevice elsewhere = m_byMac.value(device.macAddress.toUpper());
    return elsewhere.address.isEmpty() && isEitherUnknown ? there : elsewhere;
}

QString DeviceFindings::remarkOn(const DeviceData& device) const
{
    const FoundDevice found = of(device);
    if (!found.address.isEmpty() && found.address != device.ipAddress) {
        return QStringLiteral("%1: it was found at %2").arg(hubName(device), found.address);
    }
    const FoundDevice there = m_byAddress.value(device.ipAddress);
    if (found.address.isEmpty() && !there.address.isEmpty()) {
        return QStringLiteral("%1: another device was found at this address, with the MAC address "
                              "%2")
            .arg(hubName(device), there.macAddress);
    }
    // What stands in no room may be switched off or stay away.
    if (device.roomNumber == 0) {
        return {};
    }
    if (found.address.isEmpty()) {
        return QStringLiteral("%1: it did not answer the search").arg(hubName(device));
    }
    return found.refusal.isEmpty() ? QString()
                                   : QStringLiteral("%1: %2").arg(hubName(device), found.refusal);
}

/// A hub may be found at its other port too, which is nothing strange.
void DeviceFindings::findStrangers(const DocumentData& hall, const QList<FoundDevice>& found)
{
    QSet<QString> addresses;
    QSet<QString> serialNumbers{QString()};
    for (const DeviceData& device : hall.devices.all()) {
        const FoundDevice known = of(device);
        addresses += {device.ipAddress, known.address};
        serialNumbers.insert(known.serialNumber);
    }
    serialNumbers.remove(QString());
    for (const FoundDevice& device : found) {
        if (!addresses.contains(device.address) && !serialNumbers.contains(device.serialNumber)) {
            m_strangers.append(device.address);
        }
    }
}
