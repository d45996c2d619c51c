#pragma once

#include <functional>

/// Lets the event loop turn until nothing has moved for a while. `hasMoved` tells whether anything
/// did since it was called last.
void waitUntilStill(const std::function<bool()>& hasMoved);
