#include "foreignaddress.h"

#include <QHostAddress>

namespace {

using Network = QPair<QHostAddress, int>;

Network networkOf(const NicRow& side)
{
    return QHostAddress::parseSubnet(side.address + u'/' + side.mask);
}

} // namespace

QList<NicRow> sidesOf(const QList<NicInfo>& interfaces)
{
    QList<NicRow> sides;
    for (const NicInfo& nic : interfaces) {
        for (const QNetworkAddressEntry& entry : nic.addresses) {
            const bool isIpv4 = entry.ip().protocol() == QAbstractSocket::IPv4Protocol;
            if (isIpv4 && nic.isValid && !entry.ip().isLoopback()) {
                sides.append(
                    {nic.name, entry.ip().toString(), entry.netmask().toString(), nic.index});
            }
        }
    }
    return sides;
}

QString foreignWords(const QString& address, const QList<NicRow>& sides)
{
    const QHostAddress host(address);
    QStringList names;
    for (const NicRow& side : sides) {
        const Network network = networkOf(side);
        if (host.isLoopback() || host.isInSubnet(network)) {
            return {};
        }
        names.append(QStringLiteral("%1 (%2/%3)")
                         .arg(side.name, side.address, QString::number(network.second)));
    }
    if (names.isEmpty()) {
        return {};
    }
    return (names.size() == 1 ? QStringLiteral("%1 is not in the network of %2")
                              : QStringLiteral("%1 is in none of the networks of %2"))
        .arg(address, names.join(QStringLiteral(", ")));
}

QStringList foreignWords(const QStringList& addresses, const QList<NicRow>& sides)
{
    QStringList lines;
    for (const QString& address : addresses) {
        const QString line = foreignWords(address, sides);
        if (!line.isEmpty()) {
            lines.append(line);
        }
    }
    return lines;
}
