#pragma once

#include "documentdata.h"

#include <optional>

/// One layout on all hubs, and what was read back from each.
struct LayoutRecall
{
    int layout = 0;
    QList<DeviceData> hubs;
    QList<std::optional<int>> presets; ///< of the hubs, in their order
};

/// Recalls it. Nothing when no hub tells which preset is active: then none is recalled. Every hub
/// has `waitMs` for each answer.
std::optional<LayoutRecall> recallLayout(int layout, const QList<DeviceData>& hubs, int waitMs);

/// The hubs that are not on the layout, a line each.
QStringList recallFaults(const LayoutRecall& recall);
