#pragma once

#include "halldescription.h"

#include <QString>

/// The name of the broadcast test whose devices are those of the simulated hall.
const QString simulatedHallScenario = QStringLiteral("aSimulatedHallIsFoundWhole");

/// A hall of 250 devices, eight of them hubs, four of these with two network ports.
HallDescription largeHall();
