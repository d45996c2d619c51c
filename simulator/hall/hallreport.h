#pragma once

#include "hall.h"

#include <QString>

/// The devices of a hall as a table to read, one line each.
QString hallTable(const HallDescription& hall);

/// The command lines that start the wizard for a hall. Where the devices answer a search, the line
/// that searches comes first.
QString howToStart(const HallDescription& hall);

/// What each hub holds in the end, one line each, and how many differences were found.
QString hallSummary(const Hall& hall);
