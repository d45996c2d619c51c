#pragma once

#include <QString>

struct InstallPlan;
struct PlannedRequest;

/// Where the body of a request is written, below the folder of the bodies:
/// "HUB/preset-2/02A0DE000001.xml". The hub's own file of a preset is "hub.xml".
QString bodyFile(const QString& hubAddress, const PlannedRequest& request);

/// Whether bodies can be written below `folder` without standing among others: there is nothing in
/// it, or it is not there.
bool isFree(const QString& folder);

/// Writes all bodies of a hub below `folder`, which is made with what it lies in. The fault, a file
/// and a reason; empty when all are written.
QString writeBodies(const QString& folder, const QString& hubAddress, const InstallPlan& plan);
