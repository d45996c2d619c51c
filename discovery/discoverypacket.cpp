#include "discoverypacket.h"

#include <QHostAddress>
#include <QStringList>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr char magic[] = "QNFL";
constexpr qsizetype lengthOffset = 4;
constexpr qsizetype headerSize = 6; // magic and length, which the length field does not count
constexpr qsizetype flagsOffset = 6;
constexpr qsizetype familyOffset = 7;
constexpr qsizetype addressOffset = 8;
constexpr qsizetype macOffset = 24;
constexpr qsizetype textsOffset = 30;

constexpr qsizetype ipv4Size = 4;
constexpr qsizetype ipv6Size = 16;
constexpr qsizetype macSize = 6;
constexpr qsizetype bodyIndicatorSize = 2;

constexpr char ipv4Family = 4;
constexpr char ipv6Family = 6;

constexpr int replyBit = 0x80;
constexpr int modeMask = 0x0F;
constexpr int modeSet = 1;

constexpr char serviceText[] = "_qno-scp";

int byteAt(const QByteArray& bytes, qsizetype offset)
{
    return offset < bytes.size() ? static_cast<unsigned char>(bytes.at(offset)) : 0;
}

int signedByteAt(QByteArrayView bytes, qsizetype offset)
{
    return offset < bytes.size() ? static_cast<signed char>(bytes.at(offset)) : 0;
}

// So many bytes at `offset`, fewer where the datagram ends early.
QByteArrayView bytesAt(const QByteArray& bytes, qsizetype offset, qsizetype size)
{
    const qsizetype start = std::min(offset, bytes.size());
    return QByteArrayView(bytes).sliced(start, std::min(size, bytes.size() - start));
}

void appendAddress(QByteArray& packet, const QHostAddress& address)
{
    if (address.protocol() == QAbstractSocket::IPv4Protocol) {
        const quint32 ipv4 = address.toIPv4Address();
        packet += ipv4Family;
        for (int shift = 24; shift >= 0; shift -= 8) {
            packet += char((ipv4 >> shift) & 0xFF);
        }
        packet.append(ipv6Size - ipv4Size, '\0');
    } else if (address.protocol() == QAbstractSocket::IPv6Protocol) {
        const Q_IPV6ADDR ipv6 = address.toIPv6Address();
        packet += ipv6Family;
        packet.append(reinterpret_cast<const char*>(ipv6.c), ipv6Size);
    } else {
        packet += '\0';
    }
}

void setLength(QByteArray& packet)
{
    const qsizetype length = packet.size() - headerSize;
    packet[lengthOffset] = char(length / 256);
    packet[lengthOffset + 1] = char(length % 256);
}

bool hasMagicAndLength(const QByteArray& bytes)
{
    if (!bytes.startsWith(magic) || bytes.size() < headerSize) {
        return false;
    }
    const int length = signedByteAt(bytes, lengthOffset) * 256 + byteAt(bytes, lengthOffset + 1);
    return length == bytes.size() - headerSize;
}

QString addressText(const QByteArray& bytes)
{
    switch (byteAt(bytes, familyOffset)) {
    case ipv4Family:
        return formatAddressBytes(bytesAt(bytes, addressOffset, ipv4Size));
    case ipv6Family:
        return formatAddressBytes(bytesAt(bytes, addressOffset, ipv6Size));
    default:
        return {};
    }
}

// Takes the text at `offset` and moves the offset behind it.
QString takeText(const QByteArray& bytes, qsizetype& offset)
{
    const int length = signedByteAt(bytes, offset);
    const QByteArrayView text = bytesAt(bytes, offset + 1, length < 0 ? bytes.size() : length);
    offset += 1 + text.size();
    return QString::fromUtf8(text);
}

} // namespace

QByteArray buildDiscoveryQuery(const QString& localAddressText, int replyFlag, int modeFlag)
{
    QByteArray packet(magic);
    packet += "00"; // the length, known at the end
    packet += char((replyFlag == 1 ? replyBit : 0) + (modeFlag == 1 ? modeSet : 0));
    appendAddress(packet, QHostAddress(localAddressText));
    packet.append(macSize, '\0');
    packet += char(qstrlen(serviceText));
    packet += serviceText;
    packet.append(bodyIndicatorSize, '\0');
    setLength(packet);
    return packet;
}

std::optional<DiscoveryPacket> parseDiscoveryPacket(const QByteArray& bytes)
{
    if (!hasMagicAndLength(bytes)) {
        return std::nullopt;
    }
    DiscoveryPacket packet;
    const int flags = byteAt(bytes, flagsOffset);
    packet.replyFlag = (flags & replyBit) != 0 ? 1 : 0;
    packet.modeFlag = (flags & modeMask) == modeSet ? 1 : 0;
    packet.ipText = addressText(bytes);
    packet.mac = bytesAt(bytes, macOffset, macSize).toByteArray();
    qsizetype offset = textsOffset;
    packet.serviceText = takeText(bytes, offset);
    const bool hasBody = byteAt(bytes, offset) != 0 || byteAt(bytes, offset + 1) != 0;
    if (hasBody) {
        offset += bodyIndicatorSize;
        packet.nameText = takeText(bytes, offset);
        packet.modelText = takeText(bytes, offset);
        packet.trailingText = takeText(bytes, offset);
    }
    return packet;
}

QString formatAddressBytes(QByteArrayView address)
{
    if (address.size() == ipv4Size) {
        return QHostAddress(qFromBigEndian<quint32>(address.data())).toString();
    }
    if (address.size() != ipv6Size) {
        return {};
    }
    QString text;
    for (qsizetype i = 0; i < ipv6Size; ++i) {
        const bool startsGroup = i > 0 && i % 2 == 0;
        text += startsGroup ? QStringLiteral(":") : QString();
        text += QStringLiteral("%1").arg(signedByteAt(address, i), 2, 16, QLatin1Char('0'));
    }
    return text;
}
