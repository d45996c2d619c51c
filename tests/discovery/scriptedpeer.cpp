#include "scriptedpeer.h"

namespace {

constexpr quint16 commandPort = 49280;

} // namespace

ScriptedPeer::ScriptedPeer(const QString& address)
    : m_address(address)
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(takeConnection()));
}

bool ScriptedPeer::listen()
{
    return m_server.listen(hostAddress(), commandPort);
}

void ScriptedPeer::answerWith(const QList<QByteArray>& answers)
{
    m_answers = answers;
}

void ScriptedPeer::send(const QByteArray& bytes)
{
    m_socket->write(bytes);
    ++m_sends;
}

void ScriptedPeer::hangUp()
{
    m_socket->disconnectFromHost();
}

void ScriptedPeer::switchOff()
{
    m_server.close();
    if (m_socket != nullptr) {
        m_socket->abort();
    }
}

const QString& ScriptedPeer::address() const
{
    return m_address;
}

QHostAddress ScriptedPeer::hostAddress() const
{
    return QHostAddress(m_address);
}

const QByteArray& ScriptedPeer::received() const
{
    return m_received;
}

int ScriptedPeer::lines() const
{
    return int(m_received.count('\n'));
}

int ScriptedPeer::sends() const
{
    return m_sends;
}

int ScriptedPeer::connections() const
{
    return m_connections;
}

bool ScriptedPeer::isOnline() const
{
    return m_socket != nullptr && m_socket->state() == QAbstractSocket::ConnectedState;
}

void ScriptedPeer::takeConnection()
{
    m_socket = m_server.nextPendingConnection();
    ++m_connections;
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(takeBytes()));
}

void ScriptedPeer::takeBytes()
{
    auto* const socket = qobject_cast<QTcpSocket*>(sender());
    const QByteArray bytes = socket->readAll();
    m_received += bytes;
    for (qsizetype i = bytes.count('\n'); i > 0 && !m_answers.isEmpty(); --i) {
        socket->write(m_answers.takeFirst());
    }
}
