#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>

/// Everything that a peer can exchange with a device of the hall. The first eleven are the
/// requests of an installation, in its order, so that their values are its step numbers.
enum class Exchange
{
    Status,
    Token,
    SetPassword,
    LogIn,
    StartExport,
    ReadExport,
    PresetEntry,
    HubFile,
    DeviceFile,
    Recall,
    Invalidate,
    Identification,
    UnknownRequest,
    DeviceId,
    DeviceName,
    FirmwareVersion,
    SerialNumber,
    CurrentPreset,
    RecallCommand,
    IdentifyCommand,
    UnknownCommand,
    Discovery
};

/// The way on which an exchange travels.
enum class Channel
{
    Http,
    Text,
    Discovery
};

/// The last of the installation's steps; Exchange values from 0 to this are step numbers.
constexpr int lastInstallationStep = static_cast<int>(Exchange::Invalidate);

/// The way of an exchange.
Channel channelOf(Exchange exchange);

/// The name under which an exchange stands in journals, descriptions and on the command line.
QString exchangeName(Exchange exchange);

/// The names of all exchanges on that way.
QStringList exchangeNames(Channel channel);

/// The exchange of that name, or of that installation step ("0" to "10"); nothing when there is
/// none.
std::optional<Exchange> exchangeNamed(QStringView name);
