#include "installhall.h"

#include "pagefixtures.h"
#include "tablefixtures.h"

#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

InstallHall::InstallHall(const QString& base, int hubs)
    : InstallHall(quickHall(base, hubs, 0))
{
}

InstallHall::InstallHall(const HallDescription& description)
    : hall(description)
    , answers(quickPassword())
{
    QString error;
    const bool started = hall.start(&error);
    QVERIFY2(started, qPrintable(error));
    enterQuickHall(doc, description);
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
