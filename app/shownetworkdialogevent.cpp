#include "shownetworkdialogevent.h"

const QEvent::Type ShowNetworkDialogEvent::eventType = QEvent::Type(QEvent::registerEventType());

ShowNetworkDialogEvent::ShowNetworkDialogEvent()
    : QEvent(eventType)
{
}
