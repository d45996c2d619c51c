#pragma once

#include "halldescription.h"

class IDocAccessor;

/// What every hub of a quick hall has for a password.
QString quickPassword();

/// A hall whose hubs have that password, and export at once: nobody waits for the second between
/// two polls.
HallDescription quickHall(const QString& base, int hubs, int peripherals);

/// Enters the hall, its hubs one per room and the peripherals in room 1, with two layouts and named
/// presets: in layout 1 every room is for itself, in layout 2 all rooms are one, with the first
/// hub.
void enterQuickHall(IDocAccessor& doc, const HallDescription& description);
