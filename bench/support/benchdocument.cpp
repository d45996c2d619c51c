#include "benchdocument.h"

#include "devicequeries.h"
#include "documentfixtures.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "setqueries.h"

#include <QStringList>

namespace {

constexpr int rooms = 4;

QString modelOf(int device, const HallSize& size)
{
    static const QStringList peripherals{QStringLiteral("PX-DL5"), QStringLiteral("PX-BK8"),
                                         QStringLiteral("LQA4-08S"), QStringLiteral("DSK4M")};
    // Every room gets some of each.
    return device < size.hubs ? QStringLiteral("PX-HB")
                              : peripherals.at(device / rooms % peripherals.size());
}

DeviceData deviceRecord(int device, const HallSize& size)
{
    const QString number = QStringLiteral("%1").arg(device, 4, 16, QLatin1Char('0')).toUpper();
    DeviceData record;
    record.label = QStringLiteral("Renamed-%1").arg(device);
    record.ipAddress = benchAddress(device);
    record.modelName = modelOf(device, size);
    record.version = QStringLiteral("2.1.0");
    record.macAddress = QStringLiteral("02:00:00:00:") + number.left(2) + u':' + number.right(2);
    record.searchType = QStringLiteral("QNFL");
    record.roomNumber = device % rooms + 1;
    // A changed label makes the preset files as long as they can be.
    record.labelModified = true;
    return record;
}

void appendSets(HallRecords& records, int layout)
{
    for (int room = 1; room <= rooms; ++room) {
        const int set = (layout - 1) * rooms + room;
        records.presets.append(
            {set, layout, QStringLiteral("Layout %1, room %2").arg(layout).arg(room)});
        for (const DeviceData& device : std::as_const(records.devices)) {
            if (device.roomNumber == room) {
                records.sets.append({set, layout, device.ipAddress});
            }
        }
    }
}

void enter(IDocAccessor& doc, const DeviceData& device)
{
    addDevice(doc, {.label = QStringLiteral("As found"),
                    .modelName = device.modelName,
                    .version = device.version,
                    .ipAddress = device.ipAddress,
                    .macAddress = device.macAddress,
                    .searchType = device.searchType,
                    .password = QString()});
    setDeviceRoom(doc, device.ipAddress, device.roomNumber);
    setDeviceLabel(doc, device.ipAddress, device.label);
}

} // namespace

HallRecords hallRecords(const HallSize& size)
{
    HallRecords records;
    for (int device = 0; device < size.hubs + size.peripherals; ++device) {
        records.devices.append(deviceRecord(device, size));
        records.deviceAt.insert(benchAddress(device), records.devices.last());
    }
    for (int room = 1; room <= rooms; ++room) {
        records.rooms.append(testRoom(room));
    }
    for (int layout = 1; layout <= size.layouts; ++layout) {
        records.layouts.append(testLayout(layout, QStringLiteral("1/2/3/4")));
        appendSets(records, layout);
    }
    return records;
}

void fillDocument(IDocAccessor& doc, const HallSize& size)
{
    const HallRecords records = hallRecords(size);
    for (const DeviceData& device : records.devices) {
        enter(doc, device);
    }
    for (const RoomInfo& room : records.rooms) {
        setRoomCells(doc, room.number, room.positionList);
    }
    for (const SceneInfo& layout : records.layouts) {
        addLayout(doc, layout);
    }
    for (const DeviceSetInfo& set : records.sets) {
        addToDeviceSet(doc, set.deviceSetNumber, set.sceneNumber, set.ipAddress, set.remove);
    }
    for (const PresetInfo& preset : records.presets) {
        addPreset(doc, preset.deviceSetNumber, preset.sceneNumber, preset.presetName);
    }
}

QString benchAddress(int device)
{
    return QStringLiteral("127.90.%1.%2").arg(device / 200 + 1).arg(device % 200 + 1);
}
