#include "broadcasthall.h"

#include <QNetworkDatagram>

namespace {

constexpr quint16 discoveryPort = 54330;

} // namespace

QString hallAddress(int number)
{
    return QStringLiteral("10.54.1.%1").arg(number);
}

QList<BroadcastHall::Scenario> BroadcastHall::table()
{
    return {
        {QStringLiteral("theQueryIsTheExactFortyOneBytes"), &BroadcastHall::addEcho},
        {QStringLiteral("aTakenPortSendsNoQuery"), &BroadcastHall::addEcho},
        {QStringLiteral("twoHundredAndFiftyDevicesAnsweringAtOnceAreAllFound"),
         &BroadcastHall::addTwoHundredAndFifty},
        {QStringLiteral("hubsAreReportedOncePerSerialNumber"), &BroadcastHall::addHubs},
        {QStringLiteral("malformedRepliesAreDroppedAmongGoodOnes"), &BroadcastHall::addMalformed},
        {QStringLiteral("aDeviceThatRefusesItsIdentityIsNotReported"), &BroadcastHall::addRefusing},
        {QStringLiteral("askingTwiceReportsNobodyTwice"), &BroadcastHall::addOne},
        {QStringLiteral("anInterfaceThatVanishesFindsNothingMore"), &BroadcastHall::addOne},
    };
}

QStringList BroadcastHall::scenarios()
{
    QStringList names;
    for (const Scenario& scenario : table()) {
        names += scenario.name;
    }
    return names;
}

bool BroadcastHall::open(const QString& name)
{
    for (const Scenario& scenario : table()) {
        if (scenario.name == name) {
            (this->*scenario.setUp)();
        }
    }
    connect(&m_listener, SIGNAL(readyRead()), this, SLOT(answerQuery()));
    return !m_devices.empty() && m_isOpen &&
           m_listener.bind(QHostAddress(QStringLiteral("10.54.255.255")), discoveryPort);
}

void BroadcastHall::answerQuery()
{
    const QNetworkDatagram query = m_listener.receiveDatagram();
    const QString wizard = query.senderAddress().toString();
    if (m_doesEcho) {
        ScriptedReply reply = m_devices.front().device->reply();
        reply.name = wizard.toUtf8() + ':' + QByteArray::number(query.senderPort());
        reply.model = query.data().toHex();
        m_devices.front().datagrams = {reply.bytes()};
    }
    for (const Device& device : m_devices) {
        for (const QByteArray& datagram : device.datagrams) {
            device.device->send(datagram, wizard);
        }
    }
}

SimpleDevice& BroadcastHall::add(int number, const QByteArray& model, const QByteArray& serial,
                                 char lastMacByte)
{
    auto device = std::make_unique<SimpleDevice>(hallAddress(number), model, serial, lastMacByte);
    m_isOpen = device->open() && m_isOpen;
    const QList<QByteArray> datagrams{device->reply().bytes()};
    m_devices.push_back({std::move(device), datagrams});
    return *m_devices.back().device;
}

void BroadcastHall::addSpoilt(const QByteArray& datagram)
{
    add(int(m_devices.size()) + 1, "PX-DL5", "S", 1);
    m_devices.back().datagrams = {datagram};
}

void BroadcastHall::addEcho()
{
    add(1, "PX-DL5", "S", 1);
    m_doesEcho = true;
}

void BroadcastHall::addOne()
{
    add(1, "PX-DL5", "S", 1);
}

void BroadcastHall::addTwoHundredAndFifty()
{
    for (int number = 1; number <= 250; ++number) {
        add(number, "PX-DL5", QByteArray::number(number), char(number));
    }
}

void BroadcastHall::addHubs()
{
    add(10, "PX-HB", "two ports", 2);
    add(11, "PX-HB", "two ports", 1);
    add(12, "PX-HB", "one port", 3);
    add(13, "PX-HB", "equal MACs", 4);
    add(14, "PX-HB", "equal MACs", 4);
}

// The good one answers last, so that all others have been read when it is found.
void BroadcastHall::addMalformed()
{
    const ScriptedReply good = ScriptedReply::from(hallAddress(goodDevice), "PX-DL5", 1);
    const QByteArray bytes = good.bytes();
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        addSpoilt(bytes.left(size));
    }
    addSpoilt(bytes + bytes);
    ScriptedReply query = good;
    query.flags = 0;
    addSpoilt(query.bytes());
    ScriptedReply foreign = good;
    foreign.magic = "QNFM";
    addSpoilt(foreign.bytes());
    ScriptedReply tooLong = good;
    tooLong.lengthError = 1;
    addSpoilt(tooLong.bytes());
    add(goodDevice, "PX-DL5", "S", 1);
}

void BroadcastHall::addRefusing()
{
    add(1, "PX-DL5", "S", 1);
    add(2, "PX-DL5", "S", 2).commands().switchOff();
}
