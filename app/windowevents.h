#pragma once

#include <QEvent>

/// Makes the main window look for devices again on the interface chosen before. The program
/// itself never posts it.
class StartDiscoveryEvent : public QEvent
{
public:
    StartDiscoveryEvent();

    /// The event's number, obtained once at program start.
    static const QEvent::Type eventType;
};
