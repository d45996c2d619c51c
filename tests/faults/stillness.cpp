#include "stillness.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QTest>

namespace {

// Both ends share the event loop: what is under way shows within a few turns of it, however slow
// the machine.
constexpr int quietMs = 30;
constexpr int quietTurns = 60;
constexpr int longestWaitMs = 60000;

} // namespace

void waitUntilStill(const std::function<bool()>& hasMoved)
{
    const QDeadlineTimer patience(longestWaitMs);
    QDeadlineTimer quiet(quietMs);
    int turns = 0;
    while ((turns < quietTurns || !quiet.hasExpired()) && !patience.hasExpired()) {
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
            QTest::qSleep(1);
        }
        ++turns;
        if (hasMoved()) {
            quiet.setRemainingTime(quietMs);
            turns = 0;
        }
    }
}
