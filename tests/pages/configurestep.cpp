#include "configurestep.h"

#include "hands.h"
#include "pagefixtures.h"
#include "removebutton.h"
#include "setqueries.h"
#include "tablefixtures.h"

#include <QPushButton>
#include <QTreeWidget>

ConfigureStep::ConfigureStep(const QString& firstThreeNumbers)
    : network(firstThreeNumbers)
    , list(tableOf(page, "roomGroupList"))
{
}

QString ConfigureStep::address(int device) const
{
    return QStringLiteral("%1.%2").arg(network, QString::number(device));
}

void ConfigureStep::place(const char* model, int count, int room)
{
    for (int i = 0; i < count; ++i) {
        ++placed;
        addTestDevice(doc, QStringLiteral("dev-%1").arg(placed, 3, 10, QLatin1Char('0')),
                      QString::fromLatin1(model), address(placed), room);
    }
}

void ConfigureStep::enter()
{
    page.enterFrom(4);
    page.resize(780, 540);
    page.show();
}

QTreeWidget* ConfigureStep::hubs() const
{
    return tableOf(*shownPanel(page), "hubTable");
}

QTreeWidget* ConfigureStep::peripherals() const
{
    return tableOf(*shownPanel(page), "peripheralTable");
}

QTreeWidgetItem* ConfigureStep::row(int device) const
{
    QTreeWidgetItem* hub = rowWith(*hubs(), "IP Address", address(device));
    return hub ? hub : rowWith(*peripherals(), "IP Address", address(device));
}

RemoveButton* ConfigureStep::button(int device) const
{
    QTreeWidgetItem* item = row(device);
    Hands::reach(item);
    QWidget* remove = namedWidgetIn(item, "Remove");
    return qobject_cast<RemoveButton*>(remove ? remove : namedWidgetIn(item, "Revert"));
}

QString ConfigureStep::counts() const
{
    const QTreeWidgetItem* summary = tableOf(*shownPanel(page), "summaryTable")->topLevelItem(0);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(summary->text(0), summary->text(1), summary->text(2), summary->text(3));
}

bool ConfigureStep::isColoured(int group, const QColor& colour) const
{
    const QTreeWidgetItem* item = list->topLevelItem(group);
    return item->foreground(0).color() == colour && item->foreground(1).color() == colour;
}

bool ConfigureStep::isRed(int group) const
{
    return isColoured(group, Qt::red);
}

bool ConfigureStep::isBlack(int group) const
{
    return isColoured(group, Qt::black);
}

bool ConfigureStep::canGoOn() const
{
    return buttonOf(page, "nextButton")->isEnabled();
}

std::optional<bool> ConfigureStep::storedRemoval(int deviceSet, int scene, int device)
{
    const auto record = deviceSetRecord(doc, deviceSet, scene, address(device));
    return record ? std::optional(record->remove) : std::nullopt;
}

bool allTextsAre(const QTreeWidgetItem* row, const QColor& colour)
{
    for (const int column : {0, 2, 3, 4}) {
        if (row->foreground(column).color() != colour) {
            return false;
        }
    }
    return true;
}
