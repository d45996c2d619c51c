#pragma once

#include <QString>

#include <functional>

class Stopwatch;

/// One side of a comparison: prepares, then does the work between start() and stop().
using MeasuredWork = std::function<void(Stopwatch&)>;

/// Registers a benchmark that does the floor's work and ours by turns, so often.
void registerPair(const QString& row, int repetitions, const MeasuredWork& floor,
                  const MeasuredWork& ours);
