#pragma once

#include "installoutcome.h"

#include <QByteArray>
#include <QList>

class IDocAccessor;

/// One request of those that change a hub.
struct PlannedRequest
{
    InstallPlace place;
    QString storageName; ///< of a storage file: under which it is stored; empty for the hub's own,
                         ///< which only the hub knows
    QByteArray body;     ///< exactly as it is sent
};

/// What one hub would be sent.
struct InstallPlan
{
    QList<PlannedRequest> requests; ///< in their order
    InstallOutcome outcome;         ///< whether the hall has the records for all of them
};

/// Plans the installation of the hub at `ipAddress`: walks the very run that an installation walks,
/// and answers in the hub's place that all is well. What depends on the hub is left out: logging in
/// and out, and the export of its own configuration.
InstallPlan planInstallation(const QString& ipAddress, IDocAccessor& doc);
