#pragma once

#include "documentdata.h"

class HallDocument;

/// The placed hubs of a hall whose installation sends something else than it did before a device
/// was replaced by the one at `address`; this one too, if it is a hub.
QList<DeviceData> changedHubs(HallDocument& before, HallDocument& after, const QString& address);
