#include "identifysender.h"

IdentifySender::IdentifySender(const QHostAddress& hostAddress, QObject* parent)
    : SCPCommandSender(hostAddress, parent)
{
}

void IdentifySender::identify(int number)
{
    m_number = number;
    if (isConnected()) {
        tcpConnected();
    } else {
        start();
    }
}

void IdentifySender::tcpConnected()
{
    sendCommand(QStringLiteral("identify %1\n").arg(m_number));
}
