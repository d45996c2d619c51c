#pragma once

#include "records.h"

#include <QStringList>

#include <optional>

/// What the program that started the wizard handed over.
struct CommandLine
{
    int nicIndex = 0;          ///< network interface, from 1; 0 = none given
    QList<DeviceData> devices; ///< the accepted ones, in order
};

/// Reads "-N:index" and "-D:model/label/version/address/MAC[/search type[/password]]" from all
/// arguments; the last index counts. What is malformed or unknown is ignored, and so is a device
/// that the wizard cannot configure or that has no MAC address.
CommandLine readCommandLine(const QStringList& arguments);

/// The interface index of one argument; nothing when it gives none.
std::optional<int> nicIndexFromArgument(const QString& argument);

/// The device of one argument; nothing when it describes none or one that is not accepted.
std::optional<DeviceData> deviceFromArgument(const QString& argument);
