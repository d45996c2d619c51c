#include "devicelistener.h"

#include <QTcpSocket>

namespace {

constexpr quint16 firstOrdinaryPort = 1024;

} // namespace

DeviceListener::DeviceListener(const QString& address, quint16 port, QObject* parent)
    : QObject(parent)
    , m_address(address)
    , m_port(port)
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(acceptPending()));
}

bool DeviceListener::open(QString* error)
{
    if (m_server.isListening() || m_server.listen(m_address, m_port)) {
        return true;
    }
    *error = failure();
    return false;
}

void DeviceListener::close()
{
    m_server.close();
}

void DeviceListener::acceptPending()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        Q_EMIT accepted(socket);
    }
}

QString DeviceListener::failure() const
{
    QString text = QStringLiteral("cannot listen on %1 port %2: %3")
                       .arg(m_address.toString(), QString::number(m_port), m_server.errorString());
    if (m_server.serverError() == QAbstractSocket::SocketAccessError &&
        m_port < firstOrdinaryPort) {
        text += QStringLiteral(" (ports below %1 need an administrator's rights)")
                    .arg(firstOrdinaryPort);
    }
    return text;
}
