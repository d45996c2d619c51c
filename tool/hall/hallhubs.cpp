#include "hallhubs.h"

#include "deviceclass.h"

QList<DeviceData> placedHubs(const DocumentData& hall)
{
    QList<DeviceData> hubs;
    for (const DeviceData& device : hall.devices.all()) {
        if (device.roomNumber > 0 && isHub(device.modelName)) {
            hubs.append(device);
        }
    }
    return hubs;
}

QStringList addressesOf(const QList<DeviceData>& hubs)
{
    QStringList addresses;
    for (const DeviceData& hub : hubs) {
        addresses.append(hub.ipAddress);
    }
    return addresses;
}

QString hubName(const DeviceData& hub)
{
    const bool isNamed = !hub.label.isEmpty() && hub.label != hub.ipAddress;
    return isNamed ? QStringLiteral("%1 (%2)").arg(hub.label, hub.ipAddress) : hub.ipAddress;
}

QString readBackWords(std::optional<int> preset, int expected)
{
    if (!preset) {
        return QStringLiteral("no answer");
    }
    if (*preset == expected) {
        return QStringLiteral("ok");
    }
    return *preset == 0 ? QStringLiteral("on no preset") : QStringLiteral("on %1").arg(*preset);
}
