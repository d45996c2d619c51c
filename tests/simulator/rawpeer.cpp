#include "rawpeer.h"

#include <QHostAddress>
#include <QTest>

namespace {

constexpr int patienceMs = 5000;

qsizetype announcedLength(const QByteArray& header)
{
    const qsizetype start = header.indexOf("Content-Length: ");
    return start < 0 ? 0 : header.mid(start + 16).split('\r').front().toLongLong();
}

} // namespace

bool RawPeer::connectTo(const QString& address, quint16 port)
{
    connect(&m_socket, SIGNAL(readyRead()), this, SLOT(readAll()), Qt::UniqueConnection);
    if (isConnected()) {
        return true;
    }
    m_socket.connectToHost(QHostAddress(address), port);
    return QTest::qWaitFor(
               [this] {
                   return m_socket.state() == QAbstractSocket::ConnectedState ||
                          m_socket.state() == QAbstractSocket::UnconnectedState;
               },
               patienceMs) &&
           isConnected();
}

void RawPeer::send(const QByteArray& bytes)
{
    m_socket.write(bytes);
    m_socket.flush();
}

void RawPeer::close()
{
    m_socket.disconnectFromHost();
}

QByteArray RawPeer::takeReply()
{
    const bool hasCome = QTest::qWaitFor([this] { return hasReply(); }, patienceMs);
    const QByteArray bytes = received();
    m_packets.clear();
    return hasCome ? bytes : QByteArray();
}

QByteArray RawPeer::takeLine()
{
    const bool hasCome = QTest::qWaitFor([this] { return received().endsWith('\n'); }, patienceMs);
    const QByteArray bytes = received();
    m_packets.clear();
    return hasCome ? bytes : QByteArray();
}

QString RawPeer::ownAddress() const
{
    return m_socket.localAddress().toString();
}

void RawPeer::readAll()
{
    m_packets.append(m_socket.readAll());
}

bool RawPeer::hasReply() const
{
    const QByteArray bytes = received();
    const qsizetype headerEnd = bytes.indexOf("\r\n\r\n");
    return headerEnd >= 0 &&
           bytes.size() >= headerEnd + 4 + announcedLength(bytes.first(headerEnd));
}
