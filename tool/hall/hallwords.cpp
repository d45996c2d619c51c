#include "hallwords.h"

#include "documentdata.h"
#include "hallview.h"

#include <algorithm>

namespace {

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

} // namespace

QString roomCountWords(const DeviceCounts& counts)
{
    return hubsText(counts) + QStringLiteral(", ") +
           counted(counts.microphones, DeviceCounts::maxMicrophones,
                   QStringLiteral("microphones")) +
           QStringLiteral(", ") +
           counted(counts.speakers, DeviceCounts::maxSpeakers, QStringLiteral("speakers")) +
           QStringLiteral(", ") + endText(counts);
}

QString setCountWords(const DeviceCounts& counts)
{
    return hubsText(counts) + QStringLiteral(", ") + endText(counts);
}

QString useWords(const MemberView& member)
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

QString emptinessWords(const RoomGroup& group, const DocumentData& hall)
{
    const QList<DeviceData>& devices = hall.devices.all();
    const bool hasDevices =
        std::any_of(devices.begin(), devices.end(), [&group](const DeviceData& device) {
            return group.rooms.contains(device.roomNumber);
        });
    return hasDevices ? QStringLiteral("No devices are chosen.")
                      : QStringLiteral("There are no devices in it.");
}
