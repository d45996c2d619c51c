#pragma once

#include <QList>
#include <QNetworkAddressEntry>
#include <QNetworkInterface>
#include <QString>

/// One network interface of this computer, as far as the choice of an interface looks at it.
struct NicInfo
{
    QString name; // as the system shows it to people
    int index = 0;
    QNetworkInterface::InterfaceType type = QNetworkInterface::Unknown;
    bool isValid = false;
    QList<QNetworkAddressEntry> addresses;
};

/// One interface on offer. Address and mask are empty when the interface has no IPv4 address.
struct NicRow
{
    QString name;
    QString address;
    QString mask;
    int index = 0;
};

/// The computer's interfaces, in the system's order.
QList<NicInfo> systemInterfaces();

/// The interfaces on offer: the wired ones, in the order given. Wireless, loopback and virtual
/// interfaces are never offered, as no device is reached through them.
QList<NicRow> nicRows(const QList<NicInfo>& interfaces);
