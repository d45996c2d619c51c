#include "senderclock.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>

void passSeconds(QObject* sender, int seconds)
{
    for (int i = 0; i < seconds; ++i) {
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(sender);
        if (timers.isEmpty()) {
            return;
        }
        QTimerEvent event(timers.first().timerId);
        QCoreApplication::sendEvent(sender, &event);
    }
}

bool isClockRunning(QObject* sender)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(sender).isEmpty();
}
