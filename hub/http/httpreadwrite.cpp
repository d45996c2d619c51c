#include "httpreadwrite.h"

#include "httpreply.h"
#include "httprequest.h"
#include "ihttpsequence.h"

#include <QTcpSocket>
#include <QThread>

namespace {

constexpr int maxRetries = 20;
constexpr unsigned long retryPauseMs = 500;

} // namespace

HttpReadWrite::HttpReadWrite(const QString& address, const QString& password, QObject* parent)
    : QObject(parent)
    , m_address(address)
    , m_password(password)
{
}

void HttpReadWrite::start()
{
    m_retries = 0;
    if (!m_socket) {
        createSocket();
    }
    connectOrSend();
}

void HttpReadWrite::completed(bool /*success*/) {}

void HttpReadWrite::appendStep(IHttpSequence* step)
{
    m_steps.append(step);
}

void HttpReadWrite::tcpConnected()
{
    sendRequest();
}

void HttpReadWrite::tcpReadyRead()
{
    m_reader.feed(m_socket->readAll());
    if (const auto reply = m_reader.takeReply()) {
        evaluate(*reply);
    }
}

void HttpReadWrite::createSocket()
{
    m_socket = new QTcpSocket(this);
    connect(m_socket, SIGNAL(connected()), this, SLOT(tcpConnected()));
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(tcpReadyRead()));
}

/// Where a connection is on its way already, tcpConnected() will send the request.
void HttpReadWrite::connectToHub()
{
    if (m_socket->state() == QAbstractSocket::ClosingState) {
        m_socket->abort();
    }
    if (m_socket->state() == QAbstractSocket::UnconnectedState) {
        m_socket->connectToHost(m_address, hubHttpPort, QIODevice::ReadWrite);
    }
}

void HttpReadWrite::sendRequest()
{
    // What arrived before the question is no answer to it.
    m_reader.reset();
    if (!m_steps.isEmpty()) {
        QString request;
        m_steps.at(m_stepIndex)->buildRequest(request);
        m_socket->write(request.toUtf8());
    }
}

void HttpReadWrite::evaluate(const QString& reply)
{
    if (m_steps.isEmpty()) {
        return;
    }
    if (HttpReply::wantsClose(HttpReply::header(reply))) {
        m_socket->disconnectFromHost();
    }
    switch (m_steps.at(m_stepIndex)->evaluateReply(reply)) {
    case IHttpSequence::Succeeded:
        advance();
        break;
    case IHttpSequence::TryAgain:
        tryAgain();
        break;
    default:
        end(false);
    }
}

void HttpReadWrite::advance()
{
    ++m_stepIndex;
    if (m_stepIndex < m_steps.size()) {
        connectOrSend();
    } else {
        end(true);
    }
}

void HttpReadWrite::tryAgain()
{
    ++m_retries;
    if (m_retries > maxRetries) {
        end(false);
        return;
    }
    QThread::msleep(retryPauseMs);
    connectOrSend();
}

void HttpReadWrite::connectOrSend()
{
    if (m_socket->state() == QAbstractSocket::ConnectedState) {
        sendRequest();
    } else {
        connectToHub();
    }
}

void HttpReadWrite::end(bool success)
{
    m_stepIndex = 0;
    completed(success);
}
