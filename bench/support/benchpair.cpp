#include "benchpair.h"

#include "samplelog.h"
#include "stopwatch.h"

#include <benchmark/benchmark.h>

namespace {

double measure(const QString& row, const QString& side, const MeasuredWork& work, bool isWarm)
{
    Stopwatch watch(row + side);
    work(watch);
    if (isWarm) {
        recordSample(row + side, watch.milliseconds());
    }
    return watch.milliseconds();
}

} // namespace

void registerPair(const QString& row, int repetitions, const MeasuredWork& floor,
                  const MeasuredWork& ours)
{
    const QString floorSide = QStringLiteral("/floor");
    const QString oursSide = QStringLiteral("/ours");
    const auto run = [=](benchmark::State& state) {
        // The first time pays for what is made once per process.
        measure(row, floorSide, floor, false);
        measure(row, oursSide, ours, false);
        for ([[maybe_unused]] auto turn : state) {
            measure(row, floorSide, floor, true);
            state.SetIterationTime(measure(row, oursSide, ours, true) / 1e3);
        }
    };
    benchmark::RegisterBenchmark(row.toUtf8().constData(), run)
        ->Iterations(isCountingInstructions() ? 1 : repetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}
