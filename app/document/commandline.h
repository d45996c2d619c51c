#pragma once

#include "records.h"

#include <QStringList>

#include <optional>

/// What the program that started the wizard handed over.
struct CommandLine
{
    int nicIndex = 0;          ///< network interface, from 1; 0 = none given
    QList<DeviceData> devices; ///< the accepted ones, in order; no two of one address
};

/// Reads "-N:index" and "-D:model/label/version/address/MAC[/search type[/password]]" from all
/// arguments; the last index counts. What is malformed or unknown is ignored, and so is a device
/// that the wizard cannot configure, that has no MAC address, or whose address an earlier one has.
CommandLine readCommandLine(const QStringList& arguments);

/// The interface index of one argument; nothing when it gives none.
std::optional<int> nicIndexFromArgument(const QString& argument);

/// The device of one argument; nothing when it describes none or one that is not accepted.
std::optional<DeviceData> deviceFromArgument(const QString& argument);

/// The path of the configuration file to be opened: the first argument behind the program's name
/// that ends in ".tessel" and does not look like an option. Empty when there is none.
QString configurationPath(const QStringList& arguments);

/// The file that requests and replies are to be written to: the argument behind the last "--log",
/// unless it begins with "-" or ends in ".tessel". Empty when there is none.
QString logPath(const QStringList& arguments);

/// What the wizard can do nothing with among its arguments (the program's name first), each in a
/// form to be shown: as far as it can hold no password, "..." for the rest, and in one line.
QStringList ignoredArguments(const QStringList& arguments);
