#include "devicesetrecords.h"

bool DeviceSetRecords::append(const DeviceSetInfo& record)
{
    const Membership membership{{record.deviceSetNumber, record.sceneNumber}, record.ipAddress};
    if (m_byMembership.contains(membership)) {
        return false;
    }
    m_byMembership.insert(membership, m_records.size());
    const Placement placement{record.sceneNumber, record.ipAddress};
    if (!m_firstByPlacement.contains(placement)) {
        m_firstByPlacement.insert(placement, m_records.size());
    }
    m_records.append(record);
    return true;
}

void DeviceSetRecords::clear()
{
    m_records.clear();
    m_byMembership.clear();
    m_firstByPlacement.clear();
}

bool DeviceSetRecords::isEmpty() const
{
    return m_records.isEmpty();
}

const QList<DeviceSetInfo>& DeviceSetRecords::all() const
{
    return m_records;
}

const DeviceSetInfo* DeviceSetRecords::find(int deviceSet, int scene,
                                            const QString& ipAddress) const
{
    const auto position = m_byMembership.constFind({{deviceSet, scene}, ipAddress});
    return position != m_byMembership.cend() ? &m_records.at(*position) : nullptr;
}

DeviceSetInfo* DeviceSetRecords::find(int deviceSet, int scene, const QString& ipAddress)
{
    const auto position = m_byMembership.constFind({{deviceSet, scene}, ipAddress});
    return position != m_byMembership.cend() ? &m_records[*position] : nullptr;
}

const DeviceSetInfo* DeviceSetRecords::firstInLayout(int scene, const QString& ipAddress) const
{
    const auto position = m_firstByPlacement.constFind({scene, ipAddress});
    return position != m_firstByPlacement.cend() ? &m_records.at(*position) : nullptr;
}
