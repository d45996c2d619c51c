#include "nicrows.h"

#include "interfaceaddress.h"

QList<NicInfo> systemInterfaces()
{
    QList<NicInfo> interfaces;
    for (const QNetworkInterface& nic : QNetworkInterface::allInterfaces()) {
        interfaces.append({nic.humanReadableName(), nic.index(), nic.type(), nic.isValid(),
                           nic.addressEntries()});
    }
    return interfaces;
}

QList<NicRow> nicRows(const QList<NicInfo>& interfaces)
{
    QList<NicRow> rows;
    for (const NicInfo& nic : interfaces) {
        if (nic.type != QNetworkInterface::Ethernet || !nic.isValid) {
            continue;
        }
        const QNetworkAddressEntry entry = firstIpv4Entry(nic.addresses);
        rows.append({nic.name, entry.ip().toString(), entry.netmask().toString(), nic.index});
    }
    return rows;
}
