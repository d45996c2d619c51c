#include "scpcommandsender.h"

#include <QTcpSocket>

SCPCommandSender::SCPCommandSender(const QHostAddress& hostAddress, QObject* parent)
    : QObject(parent)
    , m_hostAddress(hostAddress)
{
}

SCPCommandSender::~SCPCommandSender()
{
    delete m_socket;
}

const QHostAddress& SCPCommandSender::hostAddress() const
{
    return m_hostAddress;
}

void SCPCommandSender::start()
{
    if (m_socket == nullptr) {
        createSocket();
    }
    if (isUnconnected()) {
        m_socket->connectToHost(m_hostAddress, port, QIODevice::ReadWrite);
    }
}

bool SCPCommandSender::isConnected() const
{
    return m_socket != nullptr && m_socket->state() == QAbstractSocket::ConnectedState;
}

bool SCPCommandSender::isUnconnected() const
{
    return m_socket == nullptr || m_socket->state() == QAbstractSocket::UnconnectedState;
}

void SCPCommandSender::sendCommand(const QString& command)
{
    if (m_socket != nullptr) {
        m_socket->write(command.toUtf8());
    }
}

QString SCPCommandSender::takeAnswer()
{
    return QString::fromUtf8(m_socket->readAll());
}

void SCPCommandSender::tcpReadyRead()
{
    m_socket->readAll();
}

void SCPCommandSender::tcpErrorOccurred()
{
    if (m_socket->error() == QAbstractSocket::ConnectionRefusedError) {
        Q_EMIT connectionRefused();
    }
}

void SCPCommandSender::createSocket()
{
    m_socket = new QTcpSocket(this);
    connect(m_socket, SIGNAL(connected()), this, SLOT(tcpConnected()));
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(tcpReadyRead()));
    connect(m_socket, SIGNAL(errorOccurred(QAbstractSocket::SocketError)), this,
            SLOT(tcpErrorOccurred()));
}
