#include "hubconnection.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <utility>

HubConnection::HubConnection(QTcpSocket* socket, Answerer answerer, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_answerer(std::move(answerer))
    , m_writer(socket)
{
    m_socket->setParent(this);
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(readMore()));
    connect(m_socket, SIGNAL(disconnected()), this, SLOT(finish()));
    connect(&m_writer, SIGNAL(becameIdle()), this, SLOT(processNext()));
}

void HubConnection::abort()
{
    m_isOver = true;
    m_socket->abort();
    deleteLater();
}

void HubConnection::readMore()
{
    m_buffer += m_socket->readAll();
    processNext();
}

void HubConnection::processNext()
{
    while (m_writer.isIdle() && !m_writer.isClosing() && !m_isOver && processOne()) {
    }
}

void HubConnection::finish()
{
    const bool isPeersWish = !m_isOver && !m_writer.isClosing();
    if (isPeersWish && !m_buffer.isEmpty()) {
        Q_EMIT endedInside(m_buffer);
    }
    deleteLater();
}

/// False when the bytes received so far hold no whole request.
bool HubConnection::processOne()
{
    if (m_buffer.isEmpty()) {
        return false;
    }
    const RequestReading reading = readRequest(m_buffer);
    switch (reading.verdict) {
    case RequestReading::Verdict::Incomplete:
        return false;
    case RequestReading::Verdict::Complete:
        m_buffer.remove(0, reading.consumed);
        break;
    case RequestReading::Verdict::Malformed:
        // Where the next request would begin is unknown.
        m_buffer.clear();
        break;
    }
    answer(reading);
    return true;
}

void HubConnection::answer(const RequestReading& reading)
{
    const ReplyPlan plan = m_answerer(reading, m_socket->localAddress().toString());
    if (plan.rebootMs) {
        m_isOver = true;
        Q_EMIT rebootAsked(*plan.rebootMs);
        return;
    }
    m_writer.send(plan.delivery);
}
