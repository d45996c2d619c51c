#pragma once

#include "nicrows.h"

#include <optional>

/// On which interface to search, and what is wrong on this side.
struct InterfaceChoice
{
    std::optional<NicRow> row; ///< nothing when there is a fault
    QString fault;             ///< why no search is possible; empty when one is
    /// Other interfaces with an address in the same network: the system may send what is meant for
    /// the devices by way of one of these.
    QStringList rivals;
};

/// Why this computer reaches no device by cable: it has no wired interface, or none with an
/// address. Empty when it has.
QString addressFault(const QList<NicInfo>& interfaces);

/// Chooses among the wired interfaces the one of that name; with an empty name the only one that
/// has an address.
InterfaceChoice chooseInterface(const QList<NicInfo>& interfaces, const QString& name);

/// What is to be said of the rivals, a line each.
QStringList rivalWords(const InterfaceChoice& choice);
