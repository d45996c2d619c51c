#include "currentpresetsender.h"

#include "scpanswer.h"

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
