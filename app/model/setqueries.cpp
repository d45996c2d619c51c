#include "setqueries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

namespace {

QVariantMap selector(int deviceSet, int scene, const QString& ipAddress)
{
    return {{DataKey::deviceSetNumber(), deviceSet},
            {DataKey::sceneNumber(), scene},
            {DataKey::deviceIPAddress(), ipAddress}};
}

DeviceSetInfo unpack(const QVariantMap& data)
{
    return {data.value(DataKey::deviceSetNumber()).toInt(),
            data.value(DataKey::sceneNumber()).toInt(),
            data.value(DataKey::deviceIPAddress()).toString(),
            data.value(DataKey::deviceSetRemove()).toBool(),
            data.value(DataKey::speakerPosition()).toString()};
}

QList<QVariantMap> mapsOfSet(IDocAccessor& doc, int deviceSet, int scene)
{
    QList<QVariantMap> maps;
    doc.getDataList(DataKind::DeviceSet,
                    {{DataKey::deviceSetNumber(), deviceSet}, {DataKey::sceneNumber(), scene}},
                    maps);
    return maps;
}

} // namespace

std::optional<DeviceSetInfo> deviceSetRecord(IDocAccessor& doc, int deviceSet, int scene,
                                             const QString& ipAddress)
{
    QVariantMap data = selector(deviceSet, scene, ipAddress);
    if (!doc.getData(DataKind::DeviceSet, data)) {
        return std::nullopt;
    }
    return unpack(data);
}

QHash<QString, DeviceSetInfo> deviceSetRecords(IDocAccessor& doc, int deviceSet, int scene)
{
    const QList<QVariantMap> maps = mapsOfSet(doc, deviceSet, scene);
    QHash<QString, DeviceSetInfo> records;
    records.reserve(maps.size());
    for (const QVariantMap& map : maps) {
        const DeviceSetInfo record = unpack(map);
        records.insert(record.ipAddress, record);
    }
    return records;
}

QSet<QString> removedDevices(IDocAccessor& doc, int deviceSet, int scene)
{
    QSet<QString> addresses;
    for (const QVariantMap& map : mapsOfSet(doc, deviceSet, scene)) {
        if (map.value(DataKey::deviceSetRemove()).toBool()) {
            addresses.insert(map.value(DataKey::deviceIPAddress()).toString());
        }
    }
    return addresses;
}

bool addToDeviceSet(IDocAccessor& doc, int deviceSet, int scene, const QString& ipAddress,
                    bool remove)
{
    QVariantMap data = selector(deviceSet, scene, ipAddress);
    data.insert(DataKey::deviceSetRemove(), remove);
    return doc.addData(DataKind::DeviceSet, data);
}

bool setSpeakerPosition(IDocAccessor& doc, int deviceSet, int scene, const QString& ipAddress,
                        const QString& position)
{
    QVariantMap data = selector(deviceSet, scene, ipAddress);
    data.insert(DataKey::speakerPosition(), position);
    return doc.setData(DataKind::DeviceSet, data);
}

void clearDeviceSets(IDocAccessor& doc)
{
    doc.clearData(DataKind::DeviceSet);
}
