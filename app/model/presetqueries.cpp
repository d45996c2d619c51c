#include "presetqueries.h"

#include "datakey.h"
#include "datakind.h"
#include "idocaccessor.h"

namespace {

QVariantMap hubSelector(const QString& hubAddress, int scene)
{
    return {{DataKey::deviceIPAddress(), hubAddress}, {DataKey::sceneNumber(), scene}};
}

std::optional<QVariantMap> read(IDocAccessor& doc, int kind, QVariantMap selector)
{
    if (!doc.getData(kind, selector)) {
        return std::nullopt;
    }
    return selector;
}

} // namespace

std::optional<QString> presetName(IDocAccessor& doc, int deviceSet, int scene)
{
    const auto data =
        read(doc, DataKind::Preset,
             {{DataKey::deviceSetNumber(), deviceSet}, {DataKey::sceneNumber(), scene}});
    return data ? std::optional(data->value(DataKey::presetName()).toString()) : std::nullopt;
}

std::optional<QString> presetNameOfHub(IDocAccessor& doc, const QString& hubAddress, int scene)
{
    const auto data = read(doc, DataKind::Preset, hubSelector(hubAddress, scene));
    return data ? std::optional(data->value(DataKey::presetName()).toString()) : std::nullopt;
}

bool addPreset(IDocAccessor& doc, int deviceSet, int scene, const QString& name)
{
    return doc.addData(DataKind::Preset, {{DataKey::deviceSetNumber(), deviceSet},
                                          {DataKey::sceneNumber(), scene},
                                          {DataKey::presetName(), name}});
}

void clearPresets(IDocAccessor& doc)
{
    doc.clearData(DataKind::Preset);
}

std::optional<QByteArray> hubPresetFile(IDocAccessor& doc, const QString& hubAddress, int scene)
{
    const auto data = read(doc, DataKind::PresetFile, hubSelector(hubAddress, scene));
    return data ? std::optional(data->value(DataKey::presetFile()).toByteArray()) : std::nullopt;
}

std::optional<QStringList> peripheralsOfHub(IDocAccessor& doc, const QString& hubAddress, int scene)
{
    const auto data = read(doc, DataKind::DeviceIPList, hubSelector(hubAddress, scene));
    return data ? std::optional(data->value(DataKey::deviceIPList()).toStringList()) : std::nullopt;
}

std::optional<PeripheralFile> peripheralPresetFile(IDocAccessor& doc, const QString& ipAddress)
{
    const auto data =
        read(doc, DataKind::DevicePresetFile, {{DataKey::deviceIPAddress(), ipAddress}});
    if (!data) {
        return std::nullopt;
    }
    return PeripheralFile{data->value(DataKey::presetFile()).toByteArray(),
                          data->value(DataKey::deviceMacAddress()).toString()};
}
