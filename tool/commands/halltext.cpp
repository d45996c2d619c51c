#include "halltext.h"

#include "displaywidth.h"
#include "griddrawing.h"
#include "halldocument.h"
#include "hallview.h"
#include "roomtext.h"
#include "texttable.h"

#include <algorithm>

namespace {

QStringList deviceHeadings()
{
    return {QStringLiteral("Device"), QStringLiteral("Model"), QStringLiteral("Address"),
            QStringLiteral("MAC address")};
}

QStringList cellsOf(const DeviceData& device)
{
    return {device.label, device.modelName, device.ipAddress, device.macAddress};
}

QString counted(int count, int max, const QString& what)
{
    return QStringLiteral("%1 of %2 %3").arg(QString::number(count), QString::number(max), what);
}

QString hubsText(const DeviceCounts& counts)
{
    return counted(counts.hubs, DeviceCounts::maxHubs, QStringLiteral("PX-HB"));
}

QString endText(const DeviceCounts& counts)
{
    return counted(counts.microphones + counts.speakers, DeviceCounts::maxMicrophonesAndSpeakers,
                   QStringLiteral("microphones and speakers")) +
           QStringLiteral(", ") +
           counted(counts.controllers, DeviceCounts::maxControllers, QStringLiteral("controllers"));
}

/// In a room microphones and speakers count by themselves as well.
QString roomCountsText(const DeviceCounts& counts)
{
    return hubsText(counts) + QStringLiteral(", ") +
           counted(counts.microphones, DeviceCounts::maxMicrophones,
                   QStringLiteral("microphones")) +
           QStringLiteral(", ") +
           counted(counts.speakers, DeviceCounts::maxSpeakers, QStringLiteral("speakers")) +
           QStringLiteral(", ") + endText(counts);
}

QString setCountsText(const DeviceCounts& counts)
{
    return hubsText(counts) + QStringLiteral(", ") + endText(counts);
}

QString inLines(const QString& text)
{
    return wrapped(printable(text), TextTable::usualWidth).join(u'\n') + u'\n';
}

QString breachText(const QList<LimitBreach>& breaches)
{
    QString text;
    for (const LimitBreach& breach : breaches) {
        text += inLines(QStringLiteral("!! ") + breachWords(breach));
    }
    return text;
}

QString title(const QString& text)
{
    return u'\n' + inLines(text);
}

QString roomText(const RoomView& view)
{
    QString text = title(QStringLiteral("Room %1").arg(view.number)) +
                   inLines(roomCountsText(view.tally.counts)) + breachText(view.tally.breaches);
    TextTable table(deviceHeadings());
    for (const DeviceData* device : view.devices) {
        table.addRow(cellsOf(*device));
    }
    return table.isEmpty() ? text : text + u'\n' + table.text();
}

QString unplacedText(const HallDocument& hall)
{
    TextTable table(deviceHeadings());
    for (const DeviceData& device : hall.data().devices.all()) {
        if (device.roomNumber == 0) {
            table.addRow(cellsOf(device));
        }
    }
    return table.isEmpty() ? QString() : title(QStringLiteral("In no room")) + u'\n' + table.text();
}

QString useOf(const MemberView& member)
{
    if (member.isRemoved) {
        return QStringLiteral("removed");
    }
    const bool isSpeaker =
        member.device != nullptr && deviceClass(member.device->modelName) == DeviceClass::Speaker;
    if (!isSpeaker) {
        return {};
    }
    return member.side == u"L" ? QStringLiteral("left") : QStringLiteral("right");
}

/// Why a combined room lists no devices.
QString emptinessOf(const RoomGroup& group, const DocumentData& hall)
{
    const QList<DeviceData>& devices = hall.devices.all();
    const bool hasDevices =
        std::any_of(devices.begin(), devices.end(), [&group](const DeviceData& device) {
            return group.rooms.contains(device.roomNumber);
        });
    return hasDevices ? QStringLiteral("No devices are chosen.\n")
                      : QStringLiteral("There are no devices in it.\n");
}

QString membersText(const QList<MemberView>& members)
{
    TextTable table({QStringLiteral("Device"), QStringLiteral("Model"), QStringLiteral("Address"),
                     QStringLiteral("Use")});
    for (const MemberView& member : members) {
        const DeviceData device = member.device != nullptr ? *member.device : DeviceData();
        table.addRow({device.label, device.modelName, member.address, useOf(member)});
    }
    return u'\n' + table.text();
}

QString presetText(const std::optional<QString>& name)
{
    if (!name) {
        return QStringLiteral("no preset yet");
    }
    return name->isEmpty() ? QStringLiteral("preset without a name")
                           : QStringLiteral("preset \"%1\"").arg(*name);
}

QString combinedRoomText(const CombinedRoomView& view, const DocumentData& hall)
{
    return title(QStringLiteral("Layout %1, room %2: %3")
                     .arg(QString::number(view.group.sceneNumber), layoutText({view.group.rooms}),
                          presetText(view.presetName))) +
           inLines(setCountsText(view.tally.counts)) + breachText(view.tally.breaches) +
           (view.members.isEmpty() ? emptinessOf(view.group, hall) : membersText(view.members));
}

QString layoutsText(const QList<SceneInfo>& layouts)
{
    TextTable table({QStringLiteral("Layout"), QStringLiteral("Combined rooms")});
    table.alignRight(0);
    for (const SceneInfo& layout : layouts) {
        table.addRow({QString::number(layout.number), layout.roomGroup});
    }
    return u'\n' + table.text();
}

} // namespace

QString hallText(HallDocument& hall)
{
    QString text = drawnGrid(RoomText::write(hall.data().rooms), RoomText::empty);
    for (const RoomView& view : roomViews(hall)) {
        text += roomText(view);
    }
    text += unplacedText(hall) + layoutsText(hall.data().scenes);
    for (const CombinedRoomView& view : combinedRoomViews(hall)) {
        text += combinedRoomText(view, hall.data());
    }
    return text;
}
