#include "httpconnection.h"

#include "exchangelog.h"
#include "httpreply.h"
#include "httprequest.h"

#include <QTcpSocket>
#include <QTimerEvent>

#include <utility>

namespace {

ExchangeLog* exchangeLog = nullptr;

} // namespace

HttpConnection::HttpConnection(const QString& address, QObject* parent)
    : QObject(parent)
    , m_address(address)
    , m_socket(new QTcpSocket(this))
{
    connect(m_socket, SIGNAL(connected()), this, SLOT(tcpConnected()));
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(tcpReadyRead()));
    connect(m_socket, SIGNAL(errorOccurred(QAbstractSocket::SocketError)), this,
            SLOT(tcpFailed(QAbstractSocket::SocketError)));
}

void HttpConnection::writeTo(ExchangeLog* log)
{
    exchangeLog = log;
}

void HttpConnection::open()
{
    if (m_socket->state() == QAbstractSocket::ClosingState) {
        m_socket->abort();
    }
    if (m_socket->state() == QAbstractSocket::UnconnectedState) {
        m_socket->connectToHost(m_address, hubHttpPort, QIODevice::ReadWrite);
    }
}

void HttpConnection::ask(const QString& request)
{
    prepare(request);
    send();
}

void HttpConnection::askAfter(std::chrono::milliseconds pause, const QString& request)
{
    prepare(request);
    // A coarse timer may be early.
    m_pause.start(int(pause.count()), Qt::PreciseTimer, this);
}

void HttpConnection::drop()
{
    m_pause.stop();
    m_unsent.clear();
    m_isAsked = false;
    m_socket->abort();
}

void HttpConnection::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_pause.timerId()) {
        m_pause.stop();
        send();
    } else {
        QObject::timerEvent(event);
    }
}

void HttpConnection::tcpConnected()
{
    if (!m_pause.isActive()) {
        writeUnsent();
    }
}

void HttpConnection::tcpReadyRead()
{
    Q_EMIT arrived();
    const QByteArray bytes = m_socket->readAll();
    if (!m_isAsked) {
        return;
    }
    m_reader.feed(bytes);
    if (const auto reply = m_reader.takeReply()) {
        answer(*reply);
    }
}

void HttpConnection::tcpFailed(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        m_trouble = Trouble::Refused;
        break;
    case QAbstractSocket::RemoteHostClosedError:
        m_trouble = Trouble::Broken;
        break;
    case QAbstractSocket::SocketTimeoutError:
        // Nobody answered, which is what silence means.
        break;
    default:
        m_trouble = Trouble::Unreachable;
    }
}

void HttpConnection::prepare(const QString& request)
{
    m_pause.stop();
    m_isAsked = false;
    m_unsent = request.toUtf8();
}

void HttpConnection::send()
{
    m_trouble = Trouble::None;
    open();
    writeUnsent();
}

/// A socket that is still connecting must not be given anything: should the hub refuse, it would
/// not get over it, and no later connection would come about.
void HttpConnection::writeUnsent()
{
    if (m_socket->state() != QAbstractSocket::ConnectedState || m_unsent.isEmpty()) {
        return;
    }
    m_reader.reset();
    m_isAsked = true;
    if (exchangeLog != nullptr) {
        const QString request = QString::fromUtf8(m_unsent);
        m_askedLine = request.section(QStringLiteral("\r\n"), 0, 0);
        exchangeLog->noteRequest(m_address, request);
    }
    m_socket->write(std::exchange(m_unsent, QByteArray()));
}

void HttpConnection::answer(const QString& reply)
{
    m_isAsked = false;
    if (exchangeLog != nullptr) {
        exchangeLog->noteReply(m_address, m_askedLine, reply);
    }
    if (HttpReply::wantsClose(HttpReply::header(reply))) {
        m_socket->disconnectFromHost();
    }
    Q_EMIT replied(reply);
}
