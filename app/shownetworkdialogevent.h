#pragma once

#include <QEvent>

/// Posted by the main window to itself when no network interface was handed over, so that the
/// interface dialog opens once the event loop runs.
class ShowNetworkDialogEvent : public QEvent
{
public:
    ShowNetworkDialogEvent();

    /// The event's number, obtained once at program start.
    static const QEvent::Type eventType;
};
