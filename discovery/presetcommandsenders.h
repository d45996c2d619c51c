#pragma once

#include "scpcommandsender.h"

/// Makes a device recall one of its presets and tells when the device reports that it has.
/// Begin with start().
class PresetRecallSender : public SCPCommandSender
{
    Q_OBJECT

public:
    PresetRecallSender(const QHostAddress& hostAddress, int presetNumber, QObject* parent);

Q_SIGNALS:
    /// The device reports a recall; `number` is the fourth word of its report, 0 when that is no
    /// number. The plain confirmation of the command is not reported.
    void notifyPresetRecall(int number);

protected Q_SLOTS:
    void tcpConnected() override;
    void tcpReadyRead() override;

private:
    int m_presetNumber;
};

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
