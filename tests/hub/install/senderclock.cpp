#include "senderclock.h"

#include "installdriver.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>

namespace {

/// The clock is the driver's; a sender has one driver.
QObject* clockOwner(QObject* sender)
{
    auto* driver = sender->findChild<InstallDriver*>();
    return driver ? driver : sender;
}

QList<QAbstractEventDispatcher::TimerInfo> clocksOf(QObject* owner)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(owner);
}

} // namespace

void passSeconds(QObject* sender, int seconds)
{
    QObject* owner = clockOwner(sender);
    for (int i = 0; i < seconds; ++i) {
        const auto timers = clocksOf(owner);
        if (timers.isEmpty()) {
            return;
        }
        QTimerEvent event(timers.first().timerId);
        QCoreApplication::sendEvent(owner, &event);
    }
}

bool isClockRunning(QObject* sender)
{
    return !clocksOf(clockOwner(sender)).isEmpty();
}
