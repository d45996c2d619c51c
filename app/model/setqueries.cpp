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

QSet<QString> removedDevices(IDocAccessor& doc, int deviceSet, int scene,
                             const QStringList& addresses)
{
    QSet<QString> removed;
    // One map for all: what the document found for one address it overwrites for the next.
    QVariantMap data = selector(deviceSet, scene, {});
    for (const QString& address : addresses) {
        data.insert(DataKey::deviceIPAddress(), address);
        if (doc.getData(DataKind::DeviceSet, data) &&
            data.value(DataKey::deviceSetRemove()).toBool()) {
            removed.insert(address);
        }
    }
    return removed;
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
