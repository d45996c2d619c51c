#pragma once

#include "installstep.h"

#include <QString>

/// Which request of an installation is meant.
struct InstallPlace
{
    InstallStep step = InstallStep::Status;
    int presetNumber = 0;       ///< of PresetEntry, HubFile and PeripheralFile, from 1; otherwise 0
    QString deviceAddress = {}; ///< whose file it is, of PeripheralFile; otherwise empty

    bool operator==(const InstallPlace&) const = default;
};

/// What kept a hub from doing what it was asked for.
enum class InstallTrouble
{
    None,
    OtherStatus,       ///< it answered with another status than "200"
    NotConfirmed,      ///< it answered "200" and said in the same breath that it did not do it
    ConnectionRefused, ///< its address took no connection
    Unreachable,       ///< there was no way to its address
    ConnectionBroken,  ///< it hung up before it had answered
    Silence,           ///< it took the connection, or did not even that, and never answered
    Cancelled,         ///< the user did not give the password
    BrokenOff,         ///< the user broke the installation off
    MissingRecords     ///< the wizard's own data lacked what the request needs
};

/// How far the transfer to one hub is.
struct InstallProgress
{
    int filesStored = 0;
    int filesToStore = 0; ///< in all; 0 before the transfer begins

    bool operator==(const InstallProgress&) const = default;
};

/// How the installation of one hub ended. A value for every run, whoever drives it; its words
/// are in installwords.h.
struct InstallOutcome
{
    /// Everything is installed. There may be trouble all the same: a hub that refuses to recall
    /// the preset holds it nevertheless.
    bool isInstalled = false;
    InstallTrouble trouble = InstallTrouble::None;
    InstallPlace place = {}; ///< the request that the trouble befell
    QString status =
        {}; ///< of OtherStatus: what the hub answered, such as "507 Insufficient Storage"

    bool operator==(const InstallOutcome&) const = default;
};
