#include "quickhall.h"

#include "documentfixtures.h"
#include "presetqueries.h"
#include "setqueries.h"

namespace {

void enterPeripherals(IDocAccessor& doc, const HallDescription& description)
{
    for (const DeviceDescription& device : description.peripherals) {
        addTestDevice(doc, device.label, device.model, device.address, 1);
        addToDeviceSet(doc, 1, 1, device.address, false);
        addToDeviceSet(doc, int(description.hubs.size()) + 1, 2, device.address, false);
    }
}

} // namespace

QString quickPassword()
{
    return QStringLiteral("secret7");
}

HallDescription quickHall(const QString& base, int hubs, int peripherals)
{
    HallDescription description = HallDescription::byCounts(hubs, peripherals, base).value();
    for (HubDescription& hub : description.hubs) {
        hub.password = quickPassword();
        hub.exportPolls = 0;
    }
    return description;
}

void enterQuickHall(IDocAccessor& doc, const HallDescription& description)
{
    QList<TestDevice> entered;
    QStringList rooms;
    for (const HubDescription& hub : description.hubs) {
        entered.append({.label = hub.label, .model = hub.model, .address = hub.address});
        rooms.append(QString::number(entered.size()));
    }
    enterHubs(doc, entered);
    const int allRooms = int(description.hubs.size()) + 1;
    for (const HubDescription& hub : description.hubs) {
        const bool isFirst = hub.address == description.hubs.first().address;
        addToDeviceSet(doc, allRooms, 2, hub.address, !isFirst);
    }
    addPreset(doc, allRooms, 2, QStringLiteral("All \"rooms\""));
    addTestLayout(doc, 2, rooms.join(u'+'));
    enterPeripherals(doc, description);
}
