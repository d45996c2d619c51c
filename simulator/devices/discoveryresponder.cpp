#include "discoveryresponder.h"

#include "discoveryreply.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

namespace {

// A receiver's socket keeps 166 to 256 replies that it has not read yet: this pace leaves it time
// to be busy with something else now and then.
constexpr int maxAtOnce = 50;
constexpr int paceMs = 10;

} // namespace

DiscoveryResponder::DiscoveryResponder(const QList<SimulatedDevice*>& devices,
                                       const QString& listenAddress, QObject* parent)
    : QObject(parent)
    , m_devices(devices)
    , m_listenAddress(listenAddress)
{
    m_pace.setInterval(paceMs);
    connect(&m_pace, SIGNAL(timeout()), this, SLOT(sendSome()));
}

bool DiscoveryResponder::start(QString* error)
{
    for (const SimulatedDevice* device : m_devices) {
        for (const NetworkPort& networkPort : device->networkPorts()) {
            if (!bind(networkPort.address, error)) {
                return false;
            }
        }
    }
    return bind(m_listenAddress, error);
}

void DiscoveryResponder::readQueries()
{
    auto* socket = qobject_cast<QUdpSocket*>(sender());
    while (socket != nullptr && socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = socket->receiveDatagram();
        if (isDiscoveryQuery(datagram.data())) {
            hear(datagram.data(), datagram.senderAddress(),
                 QHostAddress(datagram.destinationAddress().toIPv4Address()).toString());
        }
    }
}

void DiscoveryResponder::sendSome()
{
    for (int sent = 0; sent < maxAtOnce && !m_replies.isEmpty(); ++sent) {
        const Reply reply = m_replies.takeFirst();
        reply.socket->writeDatagram(reply.datagram, reply.receiver, port);
    }
    if (m_replies.isEmpty()) {
        m_pace.stop();
    }
}

bool DiscoveryResponder::bind(const QString& address, QString* error)
{
    if (m_sockets.contains(address)) {
        return true;
    }
    auto* socket = new QUdpSocket(this);
    connect(socket, SIGNAL(readyRead()), this, SLOT(readQueries()));
    m_sockets.insert(address, socket);
    // Shared, because the address at which queries are heard may cover those of the devices.
    if (socket->bind(QHostAddress(address), port,
                     QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint)) {
        return true;
    }
    *error = QStringLiteral("cannot use %1 port %2: %3")
                 .arg(address, QString::number(port), socket->errorString());
    return false;
}

void DiscoveryResponder::hear(const QByteArray& query, const QHostAddress& sender,
                              const QString& receiver)
{
    const QString senderText = QHostAddress(sender.toIPv4Address()).toString();
    ++m_queries;
    if (const std::optional<QString> difference = queryDifference(query, senderText)) {
        m_differences.append(*difference);
        Q_EMIT differenceFound(senderText, *difference);
    }
    // Only the devices' own addresses have sockets, besides the one at which all are asked.
    const bool isDirect = receiver != m_listenAddress && m_sockets.contains(receiver);
    answer(sender, isDirect ? receiver : QString());
    Q_EMIT queryHeard(senderText);
    if (!m_pace.isActive()) {
        m_pace.start();
        sendSome();
    }
}

void DiscoveryResponder::answer(const QHostAddress& sender, const QString& onlyPort)
{
    const QueryWay way = onlyPort.isEmpty() ? QueryWay::ToAll : QueryWay::Direct;
    for (SimulatedDevice* device : m_devices) {
        for (const NetworkPort& networkPort : device->networkPorts()) {
            if (way == QueryWay::Direct && networkPort.address != onlyPort) {
                continue;
            }
            for (const QByteArray& datagram : device->discoveryReplies(networkPort, way)) {
                m_replies.append({m_sockets.value(networkPort.address), datagram, sender});
            }
        }
    }
}
