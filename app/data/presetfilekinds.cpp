#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"
#include "presetfiles.h"

namespace {

DeviceLookup lookupIn(const DocumentData& doc)
{
    return [&doc](const QString& ipAddress) { return doc.devices.find(ipAddress); };
}

bool selectsHub(const QVariantMap& data)
{
    return data.contains(DataKey::sceneNumber()) && data.contains(DataKey::deviceIPAddress());
}

QString address(const QVariantMap& data)
{
    return data.value(DataKey::deviceIPAddress()).toString();
}

int scene(const QVariantMap& data)
{
    return data.value(DataKey::sceneNumber()).toInt();
}

} // namespace

bool PresetFileKinds::hubFile(const DocumentData& doc, QVariantMap& data)
{
    if (!selectsHub(data)) {
        return false;
    }
    const auto file = buildHubFile(doc.deviceSets.all(), lookupIn(doc), address(data), scene(data));
    if (!file) {
        return false;
    }
    data.insert(DataKey::deviceSetNumber(), file->deviceSetNumber);
    data.insert(DataKey::presetFile(), file->content);
    return true;
}

bool PresetFileKinds::peripherals(const DocumentData& doc, QVariantMap& data)
{
    if (!selectsHub(data)) {
        return false;
    }
    const auto addresses =
        listPeripherals(doc.deviceSets.all(), lookupIn(doc), address(data), scene(data));
    if (!addresses) {
        return false;
    }
    data.insert(DataKey::deviceIPList(), *addresses);
    return true;
}

bool PresetFileKinds::peripheralFile(const DocumentData& doc, QVariantMap& data)
{
    if (!data.contains(DataKey::deviceIPAddress())) {
        return false;
    }
    const auto file = buildPeripheralFile(lookupIn(doc), address(data));
    if (!file) {
        return false;
    }
    data.insert(DataKey::presetFile(), file->content);
    data.insert(DataKey::deviceMacAddress(), file->macAddress);
    return true;
}
