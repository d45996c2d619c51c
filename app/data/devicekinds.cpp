#include "kinds.h"

#include "acceptancerule.h"
#include "datakey.h"
#include "documentdata.h"

namespace {

void pack(const DeviceData& device, QVariantMap& data)
{
    data.insert(DataKey::deviceModelName(), device.modelName);
    data.insert(DataKey::deviceLabel(), device.label);
    data.insert(DataKey::deviceVersion(), device.version);
    data.insert(DataKey::deviceIPAddress(), device.ipAddress);
    data.insert(DataKey::deviceMacAddress(), device.macAddress);
}

DeviceData unpack(const QVariantMap& data)
{
    DeviceData device;
    device.label = data.value(DataKey::deviceLabel()).toString();
    device.ipAddress = data.value(DataKey::deviceIPAddress()).toString();
    device.modelName = data.value(DataKey::deviceModelName()).toString();
    device.version = data.value(DataKey::deviceVersion()).toString();
    device.macAddress = data.value(DataKey::deviceMacAddress()).toString();
    device.searchType = data.value(DataKey::deviceSearchType()).toString();
    device.password = data.value(DataKey::devicePassword()).toString();
    device.roomNumber = data.value(DataKey::roomNumber()).toInt();
    return device;
}

const DeviceData* deviceAtIndex(const DocumentData& doc, int index)
{
    return index >= 0 && index < doc.devices.size() ? &doc.devices.all().at(index) : nullptr;
}

const DeviceData* selectedDevice(const DocumentData& doc, const QVariantMap& selector)
{
    if (selector.contains(DataKey::index())) {
        return deviceAtIndex(doc, selector.value(DataKey::index()).toInt());
    }
    if (selector.contains(DataKey::deviceIPAddress())) {
        return doc.devices.find(selector.value(DataKey::deviceIPAddress()).toString());
    }
    return nullptr;
}

void rename(DeviceData& device, const QString& label)
{
    if (device.label != label) {
        device.label = label;
        device.labelModified = true;
    }
}

} // namespace

bool DeviceKinds::count(const DocumentData& doc, QVariantMap& data)
{
    data.insert(DataKey::count(), int(doc.devices.size()));
    return true;
}

bool DeviceKinds::set(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::deviceIPAddress())) {
        return false;
    }
    DeviceData* device = doc.devices.find(data.value(DataKey::deviceIPAddress()).toString());
    if (device == nullptr) {
        return false;
    }
    if (data.contains(DataKey::roomNumber())) {
        device->roomNumber = data.value(DataKey::roomNumber()).toInt();
    }
    if (data.contains(DataKey::deviceLabel())) {
        rename(*device, data.value(DataKey::deviceLabel()).toString());
    }
    return true;
}

bool DeviceKinds::get(const DocumentData& doc, QVariantMap& data)
{
    const DeviceData* device = selectedDevice(doc, data);
    if (device == nullptr) {
        return false;
    }
    pack(*device, data);
    if (device->roomNumber != 0) {
        data.insert(DataKey::roomNumber(), device->roomNumber);
    }
    return true;
}

bool DeviceKinds::add(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::deviceIPAddress())) {
        return false;
    }
    DeviceData device = unpack(data);
    if (!isDeviceAccepted(device.version, device.modelName)) {
        return false;
    }
    doc.devices.append(std::move(device));
    return true;
}

bool DeviceKinds::list(const DocumentData& doc, const QVariantMap& selector,
                       QList<QVariantMap>& list)
{
    if (!selector.contains(DataKey::roomNumber())) {
        return false;
    }
    const int room = selector.value(DataKey::roomNumber()).toInt();
    bool found = false;
    for (const DeviceData& device : doc.devices.all()) {
        if (device.roomNumber == room) {
            QVariantMap data{{DataKey::roomNumber(), room}};
            pack(device, data);
            list.append(std::move(data));
            found = true;
        }
    }
    return found;
}
