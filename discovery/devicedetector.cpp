#include "devicedetector.h"

#include "deviceclass.h"
#include "deviceinforeceiver.h"
#include "discoverypacket.h"
#include "interfaceaddress.h"
#include "mactext.h"

#include <QDebug>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QTimerEvent>
#include <QUdpSocket>
#include <QVariant>

namespace {

constexpr int secondAddressWaitMs = 1000;

// A large hall answers at once; the usual buffer holds about 250 replies.
constexpr int receiveBufferSize = 1 << 20;

} // namespace

DeviceDetector::DeviceDetector(QObject* parent, int networkInterfaceIndex)
    : QObject(parent)
    , m_networkInterfaceIndex(networkInterfaceIndex)
{
}

void DeviceDetector::detect()
{
    const QNetworkAddressEntry local = localEntry();
    sendQuery(local, local.broadcast());
}

void DeviceDetector::ask(const QString& ipText)
{
    sendQuery(localEntry(), QHostAddress(ipText));
}

bool DeviceDetector::isListening() const
{
    return m_socket != nullptr && m_socket->state() == QAbstractSocket::BoundState;
}

DetectedDevice DeviceDetector::deviceInfo(const QString& ipText) const
{
    return m_devices.value(ipText);
}

void DeviceDetector::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    HubGroup& group = m_hubs[m_timers.take(event->timerId())];
    group.isWaiting = false;
    if (group.addresses.size() == 1) {
        Q_EMIT deviceDetected(group.addresses.first().ipAddress);
    }
}

void DeviceDetector::packetReceived()
{
    const QList<QByteArray> replies = takeDatagrams();
    for (const QByteArray& reply : replies) {
        takeReply(reply);
    }
}

void DeviceDetector::deviceInfoReceived()
{
    const auto* const receiver = qobject_cast<DeviceInfoReceiver*>(sender());
    if (receiver == nullptr) {
        return;
    }
    const QString ipText = receiver->hostAddress().toString();
    const auto found = m_devices.find(ipText);
    if (found == m_devices.end()) {
        return;
    }
    found->deviceId = receiver->deviceId();
    found->deviceName = receiver->deviceName();
    found->version = receiver->version();
    found->serialNumber = receiver->serialNumber();
    found->currentPreset = receiver->currentPreset();
    if (isHub(found->modelName)) {
        groupHub(*found);
    } else {
        Q_EMIT deviceDetected(ipText);
    }
    Q_EMIT deviceIdentified(ipText);
}

QNetworkAddressEntry DeviceDetector::localEntry() const
{
    if (m_networkInterfaceIndex == 0) {
        return {};
    }
    const auto nic = QNetworkInterface::interfaceFromIndex(m_networkInterfaceIndex);
    return nic.isValid() ? firstIpv4Entry(nic.addressEntries()) : QNetworkAddressEntry();
}

void DeviceDetector::sendQuery(const QNetworkAddressEntry& local, const QHostAddress& receiver)
{
    const QByteArray query = buildDiscoveryQuery(local.ip().toString(), 0, 0);
    if (m_socket == nullptr) {
        openSocket(local);
    }
    // Written to an unbound socket, the query would leave from another port.
    if (isListening()) {
        m_socket->writeDatagram(query, receiver, port);
    }
}

void DeviceDetector::openSocket(const QNetworkAddressEntry& local)
{
    m_socket = new QUdpSocket(this);
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(packetReceived()));
    m_socket->bind(local.ip(), port);
    m_socket->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption,
                              QVariant(receiveBufferSize));
}

// All that is pending, one entry per sender in the order of arrival. Datagrams of one sender are
// joined, and their length field then drops them: devices reply in one datagram each.
QList<QByteArray> DeviceDetector::takeDatagrams()
{
    QList<QByteArray> bytesBySender;
    QHash<QHostAddress, qsizetype> places;
    while (m_socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        const qsizetype place = places.value(datagram.senderAddress(), bytesBySender.size());
        if (place == bytesBySender.size()) {
            places.insert(datagram.senderAddress(), place);
            bytesBySender.append(QByteArray());
        }
        bytesBySender[place] += datagram.data();
    }
    return bytesBySender;
}

void DeviceDetector::takeReply(const QByteArray& bytes)
{
    const auto packet = parseDiscoveryPacket(bytes);
    if (!packet) {
        return; // not of this protocol, or damaged
    }
    if (packet->replyFlag != 1) {
        return; // a query, our own perhaps
    }
    qDebug().noquote() << QStringLiteral("Model:") + packet->modelText;
    qDebug().noquote() << QStringLiteral("IP:") + packet->ipText;
    if (m_devices.contains(packet->ipText)) {
        return; // known, and being asked or already announced
    }
    DetectedDevice device;
    device.nameText = packet->nameText;
    device.modelName = packet->modelText;
    device.macAddress = formatMac(packet->mac);
    device.ipAddress = packet->ipText;
    device.searchType = QStringLiteral("QNFL");
    askIdentity(device);
}

void DeviceDetector::askIdentity(DetectedDevice device)
{
    device.receiver = new DeviceInfoReceiver(QHostAddress(device.ipAddress), this);
    connect(device.receiver, SIGNAL(deviceInfoReceived()), this, SLOT(deviceInfoReceived()));
    m_devices.insert(device.ipAddress, device);
    device.receiver->start();
    Q_EMIT deviceAnswered(device.ipAddress);
}

void DeviceDetector::groupHub(const DetectedDevice& device)
{
    HubGroup& group = m_hubs[device.serialNumber];
    group.addresses.append(device);
    if (group.addresses.size() == 1) {
        const int timer = startTimer(secondAddressWaitMs, Qt::PreciseTimer);
        m_timers.insert(timer, device.serialNumber);
    } else if (group.addresses.size() > 2) {
        qDebug().noquote() << QStringLiteral("[???]PX-HB:Serial No.=%1").arg(device.serialNumber);
    } else if (group.isWaiting) {
        reportLowerMac(group);
    }
}

void DeviceDetector::reportLowerMac(const HubGroup& group)
{
    const DetectedDevice& first = group.addresses.first();
    const DetectedDevice& second = group.addresses.last();
    const int comparison = compareMacText(first.macAddress, second.macAddress);
    if (comparison != 0) {
        Q_EMIT deviceDetected(comparison < 0 ? first.ipAddress : second.ipAddress);
    }
}
