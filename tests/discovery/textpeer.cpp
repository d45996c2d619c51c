#include "textpeer.h"

namespace {

constexpr quint16 commandPort = 49280;

} // namespace

TextPeer::TextPeer(const QString& address)
    : m_address(address)
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(takeConnection()));
}

bool TextPeer::listen()
{
    return m_server.listen(hostAddress(), commandPort);
}

void TextPeer::answerWith(const QList<QByteArray>& answers)
{
    m_answers = answers;
}

void TextPeer::send(const QByteArray& bytes)
{
    m_socket->write(bytes);
    ++m_sends;
}

void TextPeer::hangUp()
{
    m_socket->disconnectFromHost();
}

void TextPeer::switchOff()
{
    m_server.close();
    if (m_socket != nullptr) {
        m_socket->abort();
    }
}

const QString& TextPeer::address() const
{
    return m_address;
}

QHostAddress TextPeer::hostAddress() const
{
    return QHostAddress(m_address);
}

const QByteArray& TextPeer::received() const
{
    return m_received;
}

int TextPeer::lines() const
{
    return int(m_received.count('\n'));
}

int TextPeer::sends() const
{
    return m_sends;
}

int TextPeer::connections() const
{
    return m_connections;
}

bool TextPeer::isOnline() const
{
    return m_socket != nullptr && m_socket->state() == QAbstractSocket::ConnectedState;
}

void TextPeer::takeConnection()
{
    m_socket = m_server.nextPendingConnection();
    ++m_connections;
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(takeBytes()));
}

void TextPeer::takeBytes()
{
    auto* const socket = qobject_cast<QTcpSocket*>(sender());
    const QByteArray bytes = socket->readAll();
    m_received += bytes;
    for (qsizetype i = bytes.count('\n'); i > 0 && !m_answers.isEmpty(); --i) {
        socket->write(m_answers.takeFirst());
    }
}
