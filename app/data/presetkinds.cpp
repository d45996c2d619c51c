#include "kinds.h"

#include "datakey.h"
#include "documentdata.h"

#include <algorithm>

namespace {

const PresetInfo* find(const DocumentData& doc, int deviceSet, int scene)
{
    const auto preset = std::find_if(
        doc.presets.cbegin(), doc.presets.cend(), [deviceSet, scene](const PresetInfo& candidate) {
            return candidate.deviceSetNumber == deviceSet && candidate.sceneNumber == scene;
        });
    return preset != doc.presets.cend() ? &*preset : nullptr;
}

bool putName(const DocumentData& doc, int deviceSet, int scene, QVariantMap& data)
{
    const PresetInfo* preset = find(doc, deviceSet, scene);
    if (preset == nullptr) {
        return false;
    }
    data.insert(DataKey::presetName(), preset->presetName);
    return true;
}

bool getPresetOfDevice(const DocumentData& doc, int scene, QVariantMap& data)
{
    const DeviceSetInfo* record =
        doc.deviceSets.firstInLayout(scene, data.value(DataKey::deviceIPAddress()).toString());
    if (record == nullptr || record->deviceSetNumber == 0) {
        return false;
    }
    data.insert(DataKey::deviceSetNumber(), record->deviceSetNumber);
    return putName(doc, record->deviceSetNumber, scene, data);
}

} // namespace

bool PresetKinds::get(const DocumentData& doc, QVariantMap& data)
{
    if (!data.contains(DataKey::sceneNumber())) {
        return false;
    }
    const int scene = data.value(DataKey::sceneNumber()).toInt();
    if (data.contains(DataKey::deviceSetNumber())) {
        return putName(doc, data.value(DataKey::deviceSetNumber()).toInt(), scene, data);
    }
    return data.contains(DataKey::deviceIPAddress()) && getPresetOfDevice(doc, scene, data);
}

void PresetKinds::clear(DocumentData& doc)
{
    doc.presets.clear();
}

bool PresetKinds::add(DocumentData& doc, const QVariantMap& data)
{
    if (!data.contains(DataKey::deviceSetNumber()) || !data.contains(DataKey::sceneNumber())) {
        return false;
    }
    const PresetInfo preset{data.value(DataKey::deviceSetNumber()).toInt(),
                            data.value(DataKey::sceneNumber()).toInt(),
                            data.value(DataKey::presetName()).toString()};
    if (find(doc, preset.deviceSetNumber, preset.sceneNumber) != nullptr) {
        return false;
    }
    doc.presets.append(preset);
    return true;
}

bool PresetKinds::list(const DocumentData& doc, const QVariantMap& /*selector*/,
                       QList<QVariantMap>& list)
{
    for (const PresetInfo& preset : doc.presets) {
        list.append({{DataKey::deviceSetNumber(), preset.deviceSetNumber},
                     {DataKey::sceneNumber(), preset.sceneNumber},
                     {DataKey::presetName(), preset.presetName}});
    }
    return !doc.presets.isEmpty();
}
