#pragma once

#include "nicrows.h"

#include <QStringList>

/// Everything by which this computer may reach others: each of its IPv4 addresses but its own loop.
QList<NicRow> sidesOf(const QList<NicInfo>& interfaces);

/// That nobody at this address is reached without a router, such as "192.168.7.40 is not in the
/// network of eth0 (192.168.0.5/24)"; empty when it lies in the network of one of these sides, when
/// there is none, and for addresses of the loop.
QString foreignWords(const QString& address, const QList<NicRow>& sides);

/// The same of several addresses, for those that it is true of.
QStringList foreignWords(const QStringList& addresses, const QList<NicRow>& sides);
