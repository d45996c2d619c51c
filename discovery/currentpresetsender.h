#pragma once

#include "scpcommandsender.h"

/// Asks a device which of its presets is active, and goes on listening for changes.
/// Begin with start().
class CurrentPresetSender : public SCPCommandSender
{
    Q_OBJECT

public:
    CurrentPresetSender(const QHostAddress& hostAddress, QObject* parent);

Q_SIGNALS:
    /// The device at `ipAddress` has answered or reported a change; `number` is the fourth word of
    /// its line, 0 when that is no number.
    void notifyCurrentPreset(const QString& ipAddress, int number);

protected Q_SLOTS:
    void tcpConnected() override;
    void tcpReadyRead() override;
};
