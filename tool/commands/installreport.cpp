#include "installreport.h"

#include "hallinstallation.h"
#include "texttable.h"

#include <QJsonArray>

QString installTable(const QList<DeviceData>& hubs, const HallInstallation& installation)
{
    TextTable table({QStringLiteral("Hub"), QStringLiteral("Address"), QStringLiteral("Status"),
                     QStringLiteral("Reason")});
    for (const DeviceData& hub : hubs) {
        const bool isDone = installation.outcome(hub.ipAddress).isInstalled;
        table.addRow({hub.label, hub.ipAddress,
                      isDone ? QStringLiteral("Done") : QStringLiteral("Error"),
                      installation.reason(hub.ipAddress)});
    }
    return table.text();
}

QJsonObject installObject(const QList<DeviceData>& hubs, const HallInstallation& installation)
{
    QJsonArray list;
    for (const DeviceData& hub : hubs) {
        const bool isDone = installation.outcome(hub.ipAddress).isInstalled;
        list.append(QJsonObject{
            {QStringLiteral("address"), hub.ipAddress},
            {QStringLiteral("label"), hub.label},
            {QStringLiteral("outcome"), isDone ? QStringLiteral("done") : QStringLiteral("error")},
            {QStringLiteral("reason"), installation.reason(hub.ipAddress)}});
    }
    return {{QStringLiteral("hubs"), list}};
}
