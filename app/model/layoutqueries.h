#pragma once

#include "records.h"

#include <optional>

class IDocAccessor;

/// Typed queries over the room layouts ("scenes" in the document).

/// The number of layouts.
int layoutCount(IDocAccessor& doc);

/// The layout with this number, from 1; nothing when there is none.
std::optional<SceneInfo> layoutAt(IDocAccessor& doc, int number);

/// Appends a layout; false when one with its number exists.
bool addLayout(IDocAccessor& doc, const SceneInfo& layout);

/// Removes all layouts.
void clearLayouts(IDocAccessor& doc);
