#pragma once

#include "devicequeries.h"

/// The hubs that an installation is for, in document order: those that stand in a room.
QList<DeviceEntry> installableHubs(IDocAccessor& doc);
