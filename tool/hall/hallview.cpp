#include "hallview.h"

#include "halldocument.h"

#include <QHash>

#include <algorithm>

namespace {

using SetKey = std::pair<int, int>; // of a layout and a set

QHash<SetKey, QList<MemberView>> membersOf(const DocumentData& hall)
{
    QHash<SetKey, QList<MemberView>> members;
    for (const DeviceSetInfo& record : hall.deviceSets.all()) {
        members[{record.sceneNumber, record.deviceSetNumber}].append(
            {hall.devices.find(record.ipAddress), record.ipAddress, record.remove,
             record.speakerPosition});
    }
    return members;
}

QHash<SetKey, QString> presetNamesOf(const DocumentData& hall)
{
    QHash<SetKey, QString> names;
    for (const PresetInfo& preset : hall.presets) {
        names.insert({preset.sceneNumber, preset.deviceSetNumber}, preset.presetName);
    }
    return names;
}

DeviceTally tallyOf(const QList<MemberView>& members)
{
    DeviceTally tally;
    for (const MemberView& member : members) {
        if (!member.isRemoved && member.device != nullptr) {
            tally.counts.add(member.device->modelName);
        }
    }
    tally.breaches = breachesOfSet(tally.counts);
    return tally;
}

RoomView viewOf(int number, const DocumentData& hall)
{
    RoomView view{.number = number, .devices = {}, .tally = {}};
    for (const DeviceData& device : hall.devices.all()) {
        if (device.roomNumber == number) {
            view.devices.append(&device);
            view.tally.counts.add(device.modelName);
        }
    }
    view.tally.breaches = breachesOfRoom(view.tally.counts);
    return view;
}

} // namespace

QList<RoomView> roomViews(const HallDocument& hall)
{
    QList<RoomView> views;
    for (const RoomInfo& room : hall.data().rooms) {
        views.append(viewOf(room.number, hall.data()));
    }
    std::sort(views.begin(), views.end(),
              [](const RoomView& one, const RoomView& other) { return one.number < other.number; });
    return views;
}

QList<CombinedRoomView> combinedRoomViews(HallDocument& hall)
{
    const auto members = membersOf(hall.data());
    const auto names = presetNamesOf(hall.data());
    QList<CombinedRoomView> views;
    for (const RoomGroup& group : roomGroups(hall)) {
        const SetKey key(group.sceneNumber, group.number);
        const auto name = names.constFind(key);
        const QList<MemberView> inSet = members.value(key);
        views.append({group, name != names.cend() ? std::optional(*name) : std::nullopt, inSet,
                      tallyOf(inSet)});
    }
    return views;
}
