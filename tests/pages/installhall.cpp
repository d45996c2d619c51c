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

constexpr int addressColumn = 2;
constexpr int statusColumn = 3;
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
    const int rooms = int(hubs.size());
    drawRooms(doc, rooms);
    QStringList numbers;
    for (int room = 1; room <= rooms; ++room) {
        const HubDescription& hub = hubs.at(room - 1);
        addTestDevice(doc, hub.label, hub.model, hub.address, room);
        addToDeviceSet(doc, room, 1, hub.address, false);
        addToDeviceSet(doc, rooms + 1, 2, hub.address, room != 1);
        addPreset(doc, room, 1, QStringLiteral("Room %1").arg(room));
        numbers.append(QString::number(room));
    }
    addPreset(doc, rooms + 1, 2, QStringLiteral("All \"rooms\""));
    addTestLayout(doc, 1, numbers.join(u'/'));
    addTestLayout(doc, 2, numbers.join(u'+'));
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
    return columnTexts(*list(), statusColumn).join(u' ');
}

QString InstallHall::status(int hub) const
{
    const QTreeWidgetItem* row = rowWith(*list(), addressColumn, address(hub));
    return row ? row->text(statusColumn) : QStringLiteral("not listed");
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
