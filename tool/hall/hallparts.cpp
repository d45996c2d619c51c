#include "hallparts.h"

#include "hallpicture.h"
#include "roomdevices.h"
#include "roomgroup.h"

QList<SceneInfo> layoutsOf(const QStringList& layoutTexts, const QList<RoomInfo>& rooms)
{
    QList<SceneInfo> layouts;
    for (const QString& text : layoutTexts) {
        layouts.append({int(layouts.size()) + 1, text, layoutPictureOf(rooms, text)});
    }
    return layouts;
}

DeviceSetRecords deviceSetsOf(HallDocument& hall, const HallChoices& choices)
{
    DeviceSetRecords records;
    RoomDevices devices(&hall);
    for (const RoomGroup& group : roomGroups(hall)) {
        const CombinedRoomChoice choice = choices.value(group.number);
        for (const DeviceEntry& device : devices.in(group.rooms)) {
            DeviceSetInfo record;
            record.deviceSetNumber = group.number;
            record.sceneNumber = group.sceneNumber;
            record.ipAddress = device.ipAddress;
            record.remove = choice.removed.contains(device.ipAddress);
            if (choice.right.contains(device.ipAddress)) {
                record.speakerPosition = QStringLiteral("R");
            }
            records.append(record);
        }
    }
    return records;
}

QList<PresetInfo> presetsOf(HallDocument& hall, const HallChoices& choices)
{
    QList<PresetInfo> presets;
    for (const RoomGroup& group : roomGroups(hall)) {
        presets.append({group.number, group.sceneNumber, choices.value(group.number).presetName});
    }
    return presets;
}
