#include "installhall.h"

#include "devicequeries.h"
#include "pagefixtures.h"
#include "presetqueries.h"
#include "setqueries.h"
#include "tablefixtures.h"

#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

const char* const password = "secret7";

} // namespace

HallDescription quickHall(const QString& base, int hubs, int peripherals)
{
    HallDescription description = HallDescription::byCounts(hubs, peripherals, base).value();
    for (HubDescription& hub : description.hubs) {
        hub.password = QString::fromLatin1(password);
        hub.exportPolls = 0;
    }
    return description;
}

namespace {

/// Layout 1 has every room for itself; in layout 2 all rooms are one, with the first hub.
void fillDocument(IDocAccessor& doc, const QList<HubDescription>& hubs)
{
    QList<TestDevice> entered;
    QStringList rooms;
    for (const HubDescription& hub : hubs) {
        entered.append({.label = hub.label, .model = hub.model, .address = hub.address});
        rooms.append(QString::number(entered.size()));
    }
    enterHubs(doc, entered);
    const int allRooms = int(hubs.size()) + 1;
    for (const HubDescription& hub : hubs) {
        addToDeviceSet(doc, allRooms, 2, hub.address, hub.address != hubs.first().address);
    }
    addPreset(doc, allRooms, 2, QStringLiteral("All \"rooms\""));
    addTestLayout(doc, 2, rooms.join(u'+'));
}

/// The peripherals stand in room 1 and belong to its set in each layout.
void addPeripherals(IDocAccessor& doc, const HallDescription& description)
{
    for (const DeviceDescription& device : description.peripherals) {
        addTestDevice(doc, device.label, device.model, device.address, 1);
        addToDeviceSet(doc, 1, 1, device.address, false);
        addToDeviceSet(doc, int(description.hubs.size()) + 1, 2, device.address, false);
    }
}

} // namespace

InstallHall::InstallHall(const QString& base, int hubs)
    : InstallHall(quickHall(base, hubs, 0))
{
}

InstallHall::InstallHall(const HallDescription& description)
    : hall(description)
    , answers(QString::fromLatin1(password))
{
    QString error;
    const bool started = hall.start(&error);
    QVERIFY2(started, qPrintable(error));
    fillDocument(doc, description.hubs);
    addPeripherals(doc, description);
    page.enterFrom(7);
    page.resize(780, 540);
    page.show();
}

QString InstallHall::address(int hub) const
{
    return hall.description().hubs.at(hub - 1).address;
}

SimulatedHub* InstallHall::hub(int number) const
{
    return hall.hubs().at(number - 1);
}

void InstallHall::setFault(int hub, const Fault& fault) const
{
    hall.hubs().at(hub - 1)->setFault(fault);
}

QString InstallHall::statuses() const
{
    return columnTexts(*list(), "Status").join(u' ');
}

QString InstallHall::status(int hub) const
{
    const QTreeWidgetItem* row = rowWith(*list(), "IP Address", address(hub));
    return row ? textIn(*row, "Status") : QStringLiteral("not listed");
}

QPushButton* InstallHall::execute() const
{
    return buttonOf(page, "executeButton");
}

QTreeWidget* InstallHall::list() const
{
    return tableOf(page, "hubList");
}

qsizetype timesAsked(const SimulatedHub& hub, Exchange exchange)
{
    return hub.exchangeNames().count(exchangeName(exchange));
}
