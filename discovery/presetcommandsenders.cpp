#include "presetcommandsenders.h"

#include "scpanswer.h"

PresetRecallSender::PresetRecallSender(const QHostAddress& hostAddress, int presetNumber,
                                       QObject* parent)
    : SCPCommandSender(hostAddress, parent)
    , m_presetNumber(presetNumber)
{
}

void PresetRecallSender::tcpConnected()
{
    sendCommand(QStringLiteral("ssrecall_ex config %1\n").arg(m_presetNumber));
}

void PresetRecallSender::tcpReadyRead()
{
    const QString answer = takeAnswer();
    if (answer.startsWith(u"NOTIFY ssrecall_ex config")) {
        Q_EMIT notifyPresetRecall(ScpAnswer::fourthWordNumber(answer));
    }
}

CurrentPresetSender::CurrentPresetSender(const QHostAddress& hostAddress, QObject* parent)
    : SCPCommandSender(hostAddress, parent)
{
}

void CurrentPresetSender::tcpConnected()
{
    sendCommand(QStringLiteral("sscurrent_ex config\n"));
}

void CurrentPresetSender::tcpReadyRead()
{
    const QString answer = takeAnswer();
    if (answer.startsWith(u"OK") || answer.startsWith(u"NOTIFY sscurrent_ex config")) {
        Q_EMIT notifyCurrentPreset(hostAddress().toString(), ScpAnswer::fourthWordNumber(answer));
    }
}
