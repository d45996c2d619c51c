#pragma once

#include <QByteArray>
#include <QString>

/// The fields of a device's reply, written down independently of the code that reads it. A test
/// changes what it wants to see refused.
struct ScriptedReply
{
    QByteArray magic = "QNFL";
    int lengthError = 0; // added to the right length
    char flags = char(0x80);
    char family = 4;
    QByteArray address; // filled up to 16 bytes
    QByteArray mac = QByteArray::fromHex("00a0de0f10ff");
    QByteArray service = "_qno-scp";
    QByteArray bodyIndicator = QByteArray::fromHex("0001");
    QByteArray name = "device";
    QByteArray model = "PX-DL5";
    QByteArray trailing = "end";

    /// The datagram; without the three texts when the body indicator is zero.
    QByteArray bytes() const;

    /// A reply of the device at an IPv4 address, with the last byte of its MAC address.
    static ScriptedReply from(const QString& address, const QByteArray& model, char lastMacByte);
};
