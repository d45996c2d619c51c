#pragma once

#include "documentdata.h"
#include "hallwalk.h"

#include <QDateTime>
#include <QJsonObject>

/// What a walk through a hall is about, and what came of it.
struct WalkResult
{
    QList<DeviceData> hubs;
    QList<SceneInfo> layouts;
    QDateTime begun;
    const HallWalk& walk;
};

/// The layouts with what was read back from each hub, for people.
QString walkTable(const WalkResult& result);

/// The same for programs, with what was active before and is again.
QJsonObject walkObject(const WalkResult& result);

/// What was read back from one hub for one layout, in words.
QString walkWords(const WalkResult& result, const SceneInfo& layout, const DeviceData& hub);

/// On how many hubs the layout was active when they were read back.
qsizetype rightHubCount(const WalkResult& result, const SceneInfo& layout);

/// Whether every layout was read back from every hub, nothing was left out, and no hub is
/// anywhere else than before.
bool isWalkRight(const WalkResult& result);

/// The hubs that are not back on what was active before, a line each.
QStringList restoreFaults(const WalkResult& result);

/// The hubs on which no preset was active before, a line each.
QStringList restoreNotes(const WalkResult& result);

/// The addresses of the hubs that never told which preset is active, though there was the time.
QStringList silentHubs(const WalkResult& result);
