// What runs inside one process, each comparison a benchmark of its own:
//
//   bench_inside [--benchmark_filter=...]
//
// The time that Google Benchmark prints is ours; both sides go to the sample file.

#include "benchrows.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerDatagrams();
    registerPresetFiles();
    registerPages();
    registerRoomCombos();
    registerStroke();
    registerResumeFile();
    registerShow();
    benchmark::RunSpecifiedBenchmarks();
    // What they hold, widgets and pictures, must not outlive the application.
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    return 0;
}
