#include "windowevents.h"

const QEvent::Type StartDiscoveryEvent::eventType = QEvent::Type(QEvent::registerEventType());

StartDiscoveryEvent::StartDiscoveryEvent()
    : QEvent(eventType)
{
}
