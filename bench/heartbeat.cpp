#include "heartbeat.h"

#include <ctime>

namespace {

constexpr int beatMs = 5;

double processorMs()
{
    return double(std::clock()) * 1e3 / double(CLOCKS_PER_SEC);
}

} // namespace

void Heartbeat::start()
{
    m_lastBeatMs = processorMs();
    m_timer.start(beatMs, Qt::PreciseTimer, this);
}

void Heartbeat::timerEvent(QTimerEvent* /*event*/)
{
    const double now = processorMs();
    if (now - m_lastBeatMs > m_longestMs) {
        m_longestMs = now - m_lastBeatMs;
        m_longestDuring = m_activity;
    }
    m_lastBeatMs = now;
}
