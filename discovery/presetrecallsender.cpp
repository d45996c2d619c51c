#include "presetrecallsender.h"

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
