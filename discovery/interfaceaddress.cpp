#include "interfaceaddress.h"

#include <QHostAddress>

QNetworkAddressEntry firstIpv4Entry(const QList<QNetworkAddressEntry>& entries)
{
    for (const QNetworkAddressEntry& entry : entries) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
            return entry;
        }
    }
    return {};
}
