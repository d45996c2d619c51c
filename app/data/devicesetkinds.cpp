#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"

#include <optional>
#include <utility>

namespace {

struct Membership
{
    int deviceSet;
    int scene;
    QString ipAddress;
};

std::optional<Membership> unpack(const QVariantMap& data)
{
    if (!data.contains(DataKey::deviceSetNumber()) || !data.contains(DataKey::sceneNumber()) ||
        !data.contains(DataKey::deviceIPAddress())) {
        return std::nullopt;
    }
    return Membership{data.value(DataKey::deviceSetNumber()).toInt(),
                      data.value(DataKey::sceneNumber()).toInt(),
                      data.value(DataKey::deviceIPAddress()).toString()};
}

void takeChoices(DeviceSetInfo& record, const QVariantMap& data)
{
    if (data.contains(DataKey::deviceSetRemove())) {
        record.remove = data.value(DataKey::deviceSetRemove()).toBool();
    }
    if (data.contains(DataKey::speakerPosition())) {
        record.speakerPosition = data.value(DataKey::speakerPosition()).toString();
    }
}

void putChoices(const DeviceSetInfo& record, QVariantMap& data)
{
    data.insert(DataKey::deviceSetRemove(), record.remove);
    data.insert(DataKey::speakerPosition(), record.speakerPosition);
}

std::optional<int> filter(const QVariantMap& selector, const QString& key)
{
    return selector.contains(key) ? std::optional(selector.value(key).toInt()) : std::nullopt;
}

} // namespace

bool DeviceSetKinds::set(DocumentData& doc, const QVariantMap& data)
{
    const std::optional<Membership> key = unpack(data);
    DeviceSetInfo* record =
        key ? doc.deviceSets.find(key->deviceSet, key->scene, key->ipAddress) : nullptr;
    if (record == nullptr) {
        return false;
    }
    takeChoices(*record, data);
    return true;
}

bool DeviceSetKinds::get(const DocumentData& doc, QVariantMap& data)
{
    const std::optional<Membership> key = unpack(data);
    const DeviceSetInfo* record =
        key ? doc.deviceSets.find(key->deviceSet, key->scene, key->ipAddress) : nullptr;
    if (record == nullptr) {
        return false;
    }
    putChoices(*record, data);
    return true;
}

void DeviceSetKinds::clear(DocumentData& doc)
{
    doc.deviceSets.clear();
}

bool DeviceSetKinds::add(DocumentData& doc, const QVariantMap& data)
{
    const std::optional<Membership> key = unpack(data);
    if (!key) {
        return false;
    }
    DeviceSetInfo record;
    record.deviceSetNumber = key->deviceSet;
    record.sceneNumber = key->scene;
    record.ipAddress = key->ipAddress;
    takeChoices(record, data);
    return doc.deviceSets.append(record);
}

bool DeviceSetKinds::list(const DocumentData& doc, const QVariantMap& selector,
                          QList<QVariantMap>& list)
{
    const std::optional<int> deviceSet = filter(selector, DataKey::deviceSetNumber());
    const std::optional<int> scene = filter(selector, DataKey::sceneNumber());
    for (const DeviceSetInfo& record : doc.deviceSets.all()) {
        if (record.deviceSetNumber != deviceSet.value_or(record.deviceSetNumber) ||
            record.sceneNumber != scene.value_or(record.sceneNumber)) {
            continue;
        }
        QVariantMap data{{DataKey::deviceSetNumber(), record.deviceSetNumber},
                         {DataKey::sceneNumber(), record.sceneNumber},
                         {DataKey::deviceIPAddress(), record.ipAddress}};
        putChoices(record, data);
        list.append(std::move(data));
    }
    return !doc.deviceSets.isEmpty();
}
