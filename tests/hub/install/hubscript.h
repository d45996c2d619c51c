#pragma once

#include "installstep.h"
#include "scriptedpeer.h"

#include <QMap>

/// Which step of an installation a request belongs to. Steps HubFile and PeripheralFile are told
/// apart by the storage name of the script's hub.
InstallStep stepOf(const QByteArray& request);

/// The steps of these requests as numbers with blanks between them.
QString stepsOf(const QByteArrayList& requests);

/// A hub that answers every request well, except where a test says otherwise. It may be handed to
/// a ScriptedPeer by reference and changed while the peer runs.
struct HubScript
{
    static constexpr const char* storageName = "hub01";

    int initialized = 1;
    QMap<InstallStep, ScriptedAnswer> instead;      ///< for every request of the step
    QMap<InstallStep, QList<ScriptedAnswer>> first; ///< used up one by one before the others
    QByteArray extraHeader;

    ScriptedAnswer operator()(const QByteArray& request, qsizetype number);

    /// The good answer to a step.
    ScriptedAnswer good(InstallStep step) const;
};
