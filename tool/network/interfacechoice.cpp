#include "interfacechoice.h"

#include "interfaceaddress.h"

#include <QStringList>

#include <algorithm>

namespace {

QString names(const QList<NicRow>& rows)
{
    QStringList all;
    for (const NicRow& row : rows) {
        all.append(row.name);
    }
    return all.join(QStringLiteral(", "));
}

QList<NicRow> withAddress(QList<NicRow> rows)
{
    rows.removeIf([](const NicRow& row) { return row.address.isEmpty(); });
    return rows;
}

QString addressFaultOf(const QList<NicRow>& rows)
{
    if (rows.isEmpty()) {
        return QStringLiteral("this computer has no wired interface");
    }
    return withAddress(rows).isEmpty()
               ? QStringLiteral("no wired interface has an IPv4 address: %1").arg(names(rows))
               : QString();
}

InterfaceChoice refused(const QString& fault)
{
    return {{}, fault, {}};
}

InterfaceChoice chooseNamed(const QList<NicRow>& rows, const QString& name)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&name](const NicRow& row) { return row.name == name; });
    if (found == rows.end()) {
        return refused(QStringLiteral("there is no wired interface \"%1\"; there are: %2")
                           .arg(name, names(rows)));
    }
    if (found->address.isEmpty()) {
        return refused(QStringLiteral("%1 has no IPv4 address").arg(name));
    }
    return {*found, {}, {}};
}

InterfaceChoice chooseOnly(const QList<NicRow>& rows)
{
    const QString fault = addressFaultOf(rows);
    if (!fault.isEmpty()) {
        return refused(fault);
    }
    const QList<NicRow> usable = withAddress(rows);
    if (usable.size() > 1) {
        return refused(QStringLiteral("there are several wired interfaces, name one with "
                                      "--interface: %1")
                           .arg(names(usable)));
    }
    return {usable.first(), {}, {}};
}

bool shareNetwork(const QNetworkAddressEntry& one, const QNetworkAddressEntry& other)
{
    return one.ip().isInSubnet(other.ip(), other.prefixLength()) ||
           other.ip().isInSubnet(one.ip(), one.prefixLength());
}

bool isRival(const NicInfo& nic, const NicInfo& chosen)
{
    const QNetworkAddressEntry entry = firstIpv4Entry(nic.addresses);
    return nic.index != chosen.index && nic.isValid && !entry.ip().isNull() &&
           shareNetwork(entry, firstIpv4Entry(chosen.addresses));
}

QStringList rivalsOf(const QList<NicInfo>& interfaces, int index)
{
    QStringList rivals;
    for (const NicInfo& chosen : interfaces) {
        for (const NicInfo& nic : interfaces) {
            if (chosen.index == index && isRival(nic, chosen)) {
                rivals.append(nic.name);
            }
        }
    }
    return rivals;
}

} // namespace

QString addressFault(const QList<NicInfo>& interfaces)
{
    return addressFaultOf(nicRows(interfaces));
}

InterfaceChoice chooseInterface(const QList<NicInfo>& interfaces, const QString& name)
{
    const QList<NicRow> rows = nicRows(interfaces);
    if (rows.isEmpty()) {
        return refused(addressFaultOf(rows));
    }
    InterfaceChoice choice = name.isEmpty() ? chooseOnly(rows) : chooseNamed(rows, name);
    if (choice.row) {
        choice.rivals = rivalsOf(interfaces, choice.row->index);
    }
    return choice;
}

QStringList rivalWords(const InterfaceChoice& choice)
{
    QStringList lines;
    for (const QString& rival : choice.rivals) {
        lines.append(QStringLiteral("%1 and %2 have addresses in one network: what is meant for "
                                    "the devices may leave by either")
                         .arg(choice.row->name, rival));
    }
    return lines;
}
