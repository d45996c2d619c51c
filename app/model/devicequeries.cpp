#include "devicequeries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

namespace {

DeviceEntry unpack(const QVariantMap& data)
{
    return {.label = data.value(DataKey::deviceLabel()).toString(),
            .modelName = data.value(DataKey::deviceModelName()).toString(),
            .version = data.value(DataKey::deviceVersion()).toString(),
            .ipAddress = data.value(DataKey::deviceIPAddress()).toString(),
            .macAddress = data.value(DataKey::deviceMacAddress()).toString(),
            .roomNumber = data.value(DataKey::roomNumber()).toInt()};
}

std::optional<DeviceEntry> readDevice(IDocAccessor& doc, QVariantMap selector)
{
    if (!doc.getData(DataKind::Device, selector)) {
        return std::nullopt;
    }
    return unpack(selector);
}

} // namespace

int deviceCount(IDocAccessor& doc)
{
    QVariantMap data;
    doc.getData(DataKind::DeviceCount, data);
    return data.value(DataKey::count()).toInt();
}

std::optional<DeviceEntry> deviceAt(IDocAccessor& doc, int index)
{
    return readDevice(doc, {{DataKey::index(), index}});
}

std::optional<DeviceEntry> deviceByAddress(IDocAccessor& doc, const QString& ipAddress)
{
    return readDevice(doc, {{DataKey::deviceIPAddress(), ipAddress}});
}

QList<DeviceEntry> devicesInRoom(IDocAccessor& doc, int room)
{
    QList<QVariantMap> maps;
    doc.getDataList(DataKind::Device, {{DataKey::roomNumber(), room}}, maps);
    QList<DeviceEntry> devices;
    devices.reserve(maps.size());
    for (const QVariantMap& map : maps) {
        devices.append(unpack(map));
    }
    return devices;
}

bool addDevice(IDocAccessor& doc, const FoundDevice& device)
{
    QVariantMap data{{DataKey::deviceLabel(), device.label},
                     {DataKey::deviceModelName(), device.modelName},
                     {DataKey::deviceVersion(), device.version},
                     {DataKey::deviceIPAddress(), device.ipAddress},
                     {DataKey::deviceMacAddress(), device.macAddress},
                     {DataKey::deviceSearchType(), device.searchType}};
    if (!device.password.isEmpty()) {
        data.insert(DataKey::devicePassword(), device.password);
    }
    return doc.addData(DataKind::Device, data);
}

bool setDeviceRoom(IDocAccessor& doc, const QString& ipAddress, int room)
{
    return doc.setData(DataKind::Device,
                       {{DataKey::deviceIPAddress(), ipAddress}, {DataKey::roomNumber(), room}});
}

bool setDeviceLabel(IDocAccessor& doc, const QString& ipAddress, const QString& label)
{
    return doc.setData(DataKind::Device,
                       {{DataKey::deviceIPAddress(), ipAddress}, {DataKey::deviceLabel(), label}});
}

bool identifyDevice(IDocAccessor& doc, const QString& ipAddress)
{
    return doc.doAction(DataKind::Identify, {{DataKey::deviceIPAddress(), ipAddress}});
}
