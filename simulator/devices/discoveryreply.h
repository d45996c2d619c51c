#pragma once

#include "fault.h"
#include "halldescription.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// The datagram with which a device answers a discovery query: its address and MAC address on
/// this network port, and its label, model and version as the three texts.
QByteArray discoveryReply(const DeviceDescription& device, const QString& address,
                          const QString& mac);

/// Whom a query was sent to.
enum class QueryWay
{
    ToAll,
    Direct ///< to the device's own address
};

/// Turns the reply to a query that came this way into the datagrams that are sent under these
/// faults; none is possible.
QList<QByteArray> planDatagrams(const QByteArray& reply, QueryWay way, const QList<Fault>& faults);

/// True when the datagram is a query of this protocol, well written or not; replies of other
/// devices and foreign datagrams are none.
bool isDiscoveryQuery(const QByteArray& datagram);

/// In what a query from `sender` differs from the prescribed 41 bytes; nothing when it is right.
std::optional<QString> queryDifference(const QByteArray& datagram, const QString& sender);
