#include "heartbeat.h"

#include <QFile>

#include <ctime>

namespace {

constexpr int beatMs = 1;
constexpr double nsPerMs = 1e6;

double wallMs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / nsPerMs;
}

// How long this program has been ready to run without running; 0 where the system does not say.
double waitedMs()
{
    static QFile file(QStringLiteral("/proc/self/schedstat"));
    if (!file.isOpen() && !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return 0;
    }
    file.seek(0);
    return file.readLine().split(' ').value(1).toDouble() / nsPerMs;
}

double ownMs()
{
    return wallMs() - waitedMs();
}

} // namespace

void Heartbeat::start()
{
    m_lastBeatMs = ownMs();
    m_timer.start(beatMs, Qt::PreciseTimer, this);
}

void Heartbeat::timerEvent(QTimerEvent* /*event*/)
{
    const double now = ownMs();
    if (now - m_lastBeatMs > m_longestMs) {
        m_longestMs = now - m_lastBeatMs;
        m_longestDuring = m_activity;
    }
    m_lastBeatMs = now;
}
