#pragma once

#include <QEvent>

// What the main window can be sent. The type of each event is a number obtained once at program
// start.

/// Posted by the main window to itself when no network interface was handed over, so that the
/// interface dialog opens once the event loop runs.
class ShowNetworkDialogEvent : public QEvent
{
public:
    ShowNetworkDialogEvent();

    static const QEvent::Type eventType;
};

/// Makes the main window look for devices again on the interface chosen before. The program
/// itself never posts it.
class StartDiscoveryEvent : public QEvent
{
public:
    StartDiscoveryEvent();

    static const QEvent::Type eventType;
};
