#include "bareconversation.h"

BareConversation::BareConversation(const QString& address, quint16 port,
                                   const QList<QByteArray>& messages)
    : m_address(address)
    , m_port(port)
    , m_messages(messages)
{
    connect(&m_socket, SIGNAL(connected()), this, SIGNAL(connected()));
    connect(&m_socket, SIGNAL(readyRead()), this, SLOT(answered()));
}

void BareConversation::begin()
{
    m_socket.write(m_messages.at(m_sent++));
}

void BareConversation::answered()
{
    m_socket.readAll();
    if (m_sent < m_messages.size()) {
        m_socket.write(m_messages.at(m_sent++));
    } else {
        Q_EMIT finished();
    }
}
