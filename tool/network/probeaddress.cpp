#include "probeaddress.h"

#include "devicetexts.h"

#include <algorithm>

namespace {

/// Whether an entry of an interface has this for the address that `part` gives of it.
bool isOneOf(const QList<NicInfo>& interfaces, const QHostAddress& address,
             QHostAddress (QNetworkAddressEntry::*part)() const)
{
    return std::any_of(interfaces.begin(), interfaces.end(), [&](const NicInfo& nic) {
        return std::any_of(
            nic.addresses.begin(), nic.addresses.end(),
            [&](const QNetworkAddressEntry& entry) { return (entry.*part)() == address; });
    });
}

} // namespace

QString probeFault(const QString& address, const QList<NicInfo>& interfaces)
{
    if (!isIpv4Address(address)) {
        return QStringLiteral("is no IPv4 address");
    }
    const QHostAddress host(address);
    if (!isDeviceAddress(address) || isOneOf(interfaces, host, &QNetworkAddressEntry::broadcast)) {
        return QStringLiteral("is no address of one device");
    }
    return isOneOf(interfaces, host, &QNetworkAddressEntry::ip)
               ? QStringLiteral("is an address of this computer")
               : QString();
}
