#include "stopwatch.h"

#include <QtGlobal>

#include <ctime>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(name)
#endif

namespace {

clockid_t peerClock = CLOCK_PROCESS_CPUTIME_ID;

double timeOf(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double processorTime()
{
    const bool hasPeer = peerClock != CLOCK_PROCESS_CPUTIME_ID;
    return timeOf(CLOCK_PROCESS_CPUTIME_ID) + (hasPeer ? timeOf(peerClock) : 0);
}

} // namespace

Stopwatch::Stopwatch(const QString& series)
    : m_series(series.toUtf8())
{
}

void Stopwatch::start()
{
    if (isCountingInstructions()) {
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
    }
    m_milliseconds = -processorTime();
}

void Stopwatch::stop()
{
    m_milliseconds += processorTime();
    if (isCountingInstructions()) {
        CALLGRIND_DUMP_STATS_AT(m_series.constData());
        CALLGRIND_STOP_INSTRUMENTATION;
    }
}

void Stopwatch::countPeer(int pid)
{
    clock_getcpuclockid(pid, &peerClock);
}

bool isCountingInstructions()
{
    static const bool counting = qEnvironmentVariableIsSet("TESSEL_BENCH_COUNT");
    return counting;
}
