#include "workrestore.h"

#include "documentdata.h"
#include "orderedxml.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

SavedDevice saved(const DeviceData& device)
{
    return {.label = device.label,
            .ipAddress = device.ipAddress,
            .macAddress = device.macAddress,
            .modelName = device.modelName,
            .roomNumber = device.roomNumber,
            .labelModified = device.labelModified};
}

/// A device gets back what the installer gave it.
void restore(DeviceData& device, const SavedDevice& was)
{
    device.roomNumber = was.roomNumber;
    if (was.labelModified) {
        device.label = was.label;
        device.labelModified = true;
    }
}

/// A device that was saved twice gets from its second record what the first one left open: rooms
/// and labels were only ever given to the first device of an address.
void complete(DeviceData& device, const SavedDevice& again)
{
    SavedDevice was = again;
    if (device.roomNumber != 0) {
        was.roomNumber = device.roomNumber;
    }
    was.labelModified = again.labelModified && !device.labelModified;
    restore(device, was);
}

/// The addresses of the devices that are there, by the form in which they are saved where that is
/// another.
QHash<QString, QString> addressesSavedOtherwise(const DeviceRecords& devices)
{
    QHash<QString, QString> addresses;
    for (const DeviceData& device : devices.all()) {
        const QString saved = carriedByXml(device.ipAddress);
        if (saved != device.ipAddress && devices.find(saved) == nullptr) {
            addresses.insert(saved, device.ipAddress);
        }
    }
    return addresses;
}

/// Restores what is there; returns the devices that are not and would be missed. One that was in
/// no room is forgotten.
QList<SavedDevice> restoreDevices(DocumentData& doc, const QList<SavedDevice>& devices)
{
    const QHash<QString, QString> addresses = addressesSavedOtherwise(doc.devices);
    QList<SavedDevice> missing;
    QSet<const DeviceData*> restored;
    for (const SavedDevice& was : devices) {
        DeviceData* device = doc.devices.find(addresses.value(was.ipAddress, was.ipAddress),
                                              was.macAddress, was.modelName);
        if (device == nullptr) {
            if (was.roomNumber != 0) {
                missing.append(was);
            }
        } else if (restored.contains(device)) {
            complete(*device, was);
        } else {
            restored.insert(device);
            restore(*device, was);
        }
    }
    return missing;
}

template <typename Record, typename KeyOf>
QList<Record> withoutRepetitions(const QList<Record>& records, KeyOf keyOf)
{
    QSet<std::decay_t<decltype(keyOf(records.first()))>> seen;
    QList<Record> kept;
    for (const Record& record : records) {
        const auto key = keyOf(record);
        if (!seen.contains(key)) {
            seen.insert(key);
            kept.append(record);
        }
    }
    return kept;
}

/// Puts one section into the document; false when missing devices stop it.
struct SectionRestorer
{
    DocumentData& doc;
    QList<SavedDevice>& missing;
    IfMissing ifMissing;

    bool operator()(const QList<SavedDevice>& devices) const
    {
        missing = restoreDevices(doc, devices);
        return missing.isEmpty() || ifMissing == IfMissing::LeaveOut;
    }
    bool operator()(const QList<RoomInfo>& rooms) const
    {
        doc.rooms = withoutRepetitions(rooms, [](const RoomInfo& room) { return room.number; });
        return true;
    }
    bool operator()(const QList<SceneInfo>& scenes) const
    {
        doc.scenes =
            withoutRepetitions(scenes, [](const SceneInfo& scene) { return scene.number; });
        return true;
    }
    bool operator()(const QList<DeviceSetInfo>& records) const
    {
        const QHash<QString, QString> addresses = addressesSavedOtherwise(doc.devices);
        doc.deviceSets.clear();
        for (DeviceSetInfo record : records) {
            record.ipAddress = addresses.value(record.ipAddress, record.ipAddress);
            if (ifMissing == IfMissing::Stop || doc.devices.find(record.ipAddress) != nullptr) {
                doc.deviceSets.append(record);
            }
        }
        return true;
    }
    bool operator()(const QList<PresetInfo>& presets) const
    {
        doc.presets = withoutRepetitions(presets, [](const PresetInfo& preset) {
            return std::pair(preset.deviceSetNumber, preset.sceneNumber);
        });
        return true;
    }
    bool operator()(QSize windowSize) const
    {
        doc.windowSize = windowSize;
        return true;
    }
};

void restorePictures(QList<SceneInfo>& scenes, const QList<SceneInfo>& pictures)
{
    for (const SceneInfo& picture : pictures) {
        const auto scene =
            std::find_if(scenes.begin(), scenes.end(), [&](const SceneInfo& candidate) {
                return candidate.number == picture.number &&
                       candidate.roomGroup == picture.roomGroup;
            });
        if (scene != scenes.end()) {
            scene->thumbnail = picture.thumbnail;
        }
    }
}

} // namespace

SavedWork gatherWork(const DocumentData& doc)
{
    QList<SavedDevice> devices;
    devices.reserve(doc.devices.size());
    for (const DeviceData& device : doc.devices.all()) {
        devices.append(saved(device));
    }
    SavedWork work;
    work.pageIndex = doc.pageIndex;
    work.sections = {devices,     doc.rooms,     doc.scenes, doc.deviceSets.all(),
                     doc.presets, doc.windowSize};
    return work;
}

RestoreOutcome restoreWork(DocumentData& doc, const SavedWork& work,
                           const QList<SceneInfo>& pictures, IfMissing ifMissing)
{
    RestoreOutcome outcome;
    doc.pageIndex = work.pageIndex;
    for (const SavedSection& section : work.sections) {
        if (!std::visit(SectionRestorer{doc, outcome.missing, ifMissing}, section)) {
            return outcome;
        }
    }
    if (!work.hasForeignElement) {
        restorePictures(doc.scenes, pictures);
        outcome.isComplete = true;
    }
    return outcome;
}
