#include "simpledevice.h"

namespace {

constexpr quint16 discoveryPort = 54330;

QList<QByteArray> identity(const QString& address, const QByteArray& serial)
{
    const QByteArray id = "OK devinfo deviceid \"1\"\n";
    return {id,
            id,
            "OK devinfo devicename \"Device " + address.toUtf8() + "\"\n",
            "OK devinfo version \"V2.0.1\"\n",
            "OK devinfo serialno \"" + serial + "\"\n",
            "OK sscurrent_ex config 3\n"};
}

} // namespace

SimpleDevice::SimpleDevice(const QString& address, const QByteArray& model,
                           const QByteArray& serial, char lastMacByte)
    : m_reply(ScriptedReply::from(address, model, lastMacByte))
    , m_commands(address)
{
    m_commands.answerWith(identity(address, serial));
}

bool SimpleDevice::open()
{
    return m_commands.listen() && m_socket.bind(m_commands.hostAddress(), discoveryPort);
}

const ScriptedReply& SimpleDevice::reply() const
{
    return m_reply;
}

void SimpleDevice::send(const QByteArray& bytes, const QString& wizard)
{
    m_socket.writeDatagram(bytes, QHostAddress(wizard), discoveryPort);
}

TextPeer& SimpleDevice::commands()
{
    return m_commands;
}
