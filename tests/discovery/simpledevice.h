#pragma once

#include "scriptedreply.h"
#include "textpeer.h"

#include <QUdpSocket>

/// A device at an address of its own: replies to discovery when told, and tells its identity.
class SimpleDevice
{
public:
    /// The identity's serial number and the last byte of the MAC address tell hubs apart.
    SimpleDevice(const QString& address, const QByteArray& model, const QByteArray& serial,
                 char lastMacByte);

    /// Opens both ports; false when one is taken.
    bool open();

    /// The reply as it is sent unless a test spoils it.
    const ScriptedReply& reply() const;

    /// Sends a datagram from the device to the wizard at `wizard`.
    void send(const QByteArray& bytes, const QString& wizard);

    TextPeer& commands();

private:
    ScriptedReply m_reply;
    TextPeer m_commands;
    QUdpSocket m_socket;
};
