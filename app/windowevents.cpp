#include "windowevents.h"

const QEvent::Type ShowNetworkDialogEvent::eventType = QEvent::Type(QEvent::registerEventType());
const QEvent::Type StartDiscoveryEvent::eventType = QEvent::Type(QEvent::registerEventType());

ShowNetworkDialogEvent::ShowNetworkDialogEvent()
    : QEvent(eventType)
{
}

StartDiscoveryEvent::StartDiscoveryEvent()
    : QEvent(eventType)
{
}
