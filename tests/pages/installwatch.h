#pragma once

#include <QString>

class PresetFileSender;
class QWidget;
struct InstallHall;

/// How a test follows an installation from outside.

/// The sender that installs into the hub of this address, anywhere below `page`; null when it was
/// never started.
PresetFileSender* senderOf(const QWidget& page, const QString& address);

/// Waits until no sender below `page` runs any more; false when one still does after a long time.
bool waitUntilOver(const QWidget& page);

/// Waits until nothing moves any more: whoever is still waited for says nothing.
void waitUntilQuiet(const InstallHall& step);
