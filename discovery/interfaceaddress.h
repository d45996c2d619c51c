#pragma once

#include <QList>
#include <QNetworkAddressEntry>

/// The first IPv4 entry of an interface's addresses; an empty entry when there is none.
QNetworkAddressEntry firstIpv4Entry(const QList<QNetworkAddressEntry>& entries);
