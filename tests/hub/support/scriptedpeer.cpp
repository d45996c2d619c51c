#include "scriptedpeer.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace {

constexpr quint16 port = 80;

/// The length of the first request in `bytes`; -1 while it is not complete.
qsizetype requestLength(const QByteArray& bytes)
{
    const qsizetype headerEnd = bytes.indexOf("\r\n\r\n");
    if (headerEnd < 0) {
        return -1;
    }
    const QByteArray name = "Content-Length: ";
    const qsizetype line = bytes.first(headerEnd).indexOf(name);
    qsizetype length = headerEnd + 4;
    if (line >= 0) {
        const qsizetype value = line + name.size();
        length += bytes.mid(value, bytes.indexOf('\r', value) - value).toLongLong();
    }
    return bytes.size() < length ? -1 : length;
}

void writePieces(QTcpSocket* socket, QByteArrayList pieces, bool close);

/// Lets the event loop look at all sockets in between, so that the pieces arrive one by one: a
/// timer that ends at once may still fire in the turn in which it was started.
void writeNextTurn(QTcpSocket* socket, const QByteArrayList& pieces, bool close)
{
    QTimer::singleShot(0, socket, [=] {
        QTimer::singleShot(0, socket, [=] { writePieces(socket, pieces, close); });
    });
}

void writePieces(QTcpSocket* socket, QByteArrayList pieces, bool close)
{
    if (pieces.isEmpty()) {
        if (close) {
            socket->disconnectFromHost();
        }
        return;
    }
    socket->write(pieces.takeFirst());
    socket->flush();
    writeNextTurn(socket, pieces, close);
}

} // namespace

QByteArray httpReply(const QByteArray& status, const QByteArray& body, const QByteArray& extra)
{
    return "HTTP/1.1 " + status + " Text\r\n" + extra +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

ScriptedAnswer okAnswer(const QByteArray& body, const QByteArray& extra)
{
    return {{httpReply("200", body, extra)}};
}

ScriptedAnswer bytewise(const QByteArray& reply)
{
    ScriptedAnswer answer;
    for (const char byte : reply) {
        answer.pieces.append(QByteArray(1, byte));
    }
    return answer;
}

ScriptedPeer::ScriptedPeer(const QString& address, Script script)
    : m_script(std::move(script))
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(accept()));
    m_server.listen(QHostAddress(address), port);
}

bool ScriptedPeer::isListening() const
{
    return m_server.isListening();
}

void ScriptedPeer::sendUnasked(const QByteArray& bytes)
{
    m_latest->write(bytes);
    m_latest->flush();
}

void ScriptedPeer::closeConnection()
{
    m_latest->disconnectFromHost();
}

void ScriptedPeer::accept()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, SIGNAL(readyRead()), this, SLOT(read()));
        m_latest = socket;
        ++m_connectionCount;
    }
}

void ScriptedPeer::read()
{
    auto* socket = qobject_cast<QTcpSocket*>(sender());
    m_received[socket] += socket->readAll();
    takeRequests(socket);
}

void ScriptedPeer::takeRequests(QTcpSocket* socket)
{
    QByteArray& received = m_received[socket];
    for (qsizetype length = requestLength(received); length >= 0;
         length = requestLength(received)) {
        const QByteArray request = received.first(length);
        received.remove(0, length);
        m_requests.append(request);
        answer(socket, m_script(request, m_requests.size() - 1));
    }
}

void ScriptedPeer::answer(QTcpSocket* socket, const ScriptedAnswer& answer)
{
    writePieces(socket, answer.pieces, answer.close);
}
