#include "devicerecords.h"

#include "orderedxml.h"

#include <algorithm>

void DeviceRecords::append(DeviceData device)
{
    if (!m_firstByAddress.contains(device.ipAddress)) {
        m_firstByAddress.insert(device.ipAddress, m_devices.size());
    }
    m_devices.append(std::move(device));
}

qsizetype DeviceRecords::size() const
{
    return m_devices.size();
}

const QList<DeviceData>& DeviceRecords::all() const
{
    return m_devices;
}

const DeviceData* DeviceRecords::find(const QString& ipAddress) const
{
    const auto position = m_firstByAddress.constFind(ipAddress);
    return position != m_firstByAddress.cend() ? &m_devices.at(*position) : nullptr;
}

DeviceData* DeviceRecords::find(const QString& ipAddress)
{
    const auto position = m_firstByAddress.constFind(ipAddress);
    return position != m_firstByAddress.cend() ? &m_devices[*position] : nullptr;
}

DeviceData* DeviceRecords::find(const QString& ipAddress, const QString& macAddress,
                                const QString& modelName)
{
    const auto first = m_firstByAddress.constFind(ipAddress);
    if (first == m_firstByAddress.cend()) {
        return nullptr;
    }
    const auto device =
        std::find_if(m_devices.begin() + *first, m_devices.end(), [&](const DeviceData& candidate) {
            return candidate.ipAddress == ipAddress &&
                   carriedByXml(candidate.macAddress) == macAddress &&
                   carriedByXml(candidate.modelName) == modelName;
        });
    return device != m_devices.end() ? &*device : nullptr;
}
