#include "discoveryreply.h"

#include <QHostAddress>

namespace {

constexpr const char* magic = "QNFL";
constexpr const char* service = "_qno-scp";
constexpr qsizetype lengthOffset = 4;
constexpr qsizetype flagsOffset = 6;
constexpr char replyFlag = static_cast<char>(0x80);
constexpr int prefixSize = 6;
constexpr qsizetype maxTextLength = 127;

QByteArray addressBytes(const QString& address)
{
    const quint32 number = QHostAddress(address).toIPv4Address();
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.append(static_cast<char>((number >> shift) & 0xFF));
    }
    return bytes;
}

QByteArray macBytes(const QString& mac)
{
    return QByteArray::fromHex(mac.toLatin1()).leftJustified(6, '\0', true);
}

QByteArray counted(const QByteArray& text)
{
    const QByteArray kept = text.first(qMin(text.size(), maxTextLength));
    return static_cast<char>(kept.size()) + kept;
}

void setLength(QByteArray& datagram, qsizetype length)
{
    datagram[lengthOffset] = static_cast<char>((length >> 8) & 0xFF);
    datagram[lengthOffset + 1] = static_cast<char>(length & 0xFF);
}

/// Everything up to the body indicator, with the right length for a datagram without a body.
QByteArray datagram(char flags, const QString& address, const QByteArray& mac)
{
    QByteArray bytes(magic);
    bytes += QByteArray(2, '\0') + flags + char(4) + addressBytes(address) + QByteArray(12, '\0');
    bytes += mac + counted(service) + QByteArray(2, '\0');
    setLength(bytes, bytes.size() - prefixSize);
    return bytes;
}

void apply(QList<QByteArray>& datagrams, const Fault& fault)
{
    QByteArray& reply = datagrams.front();
    if (reply.size() <= flagsOffset && fault.kind != FaultKind::RawDatagram) {
        return;
    }
    switch (fault.kind) {
    case FaultKind::WrongMagic:
        reply[0] = 'X';
        break;
    case FaultKind::WrongLength:
        setLength(reply, reply.size() - prefixSize + 1);
        break;
    case FaultKind::NoReplyFlag:
        reply[flagsOffset] = 0;
        break;
    case FaultKind::Truncated:
        reply.truncate(fault.number);
        break;
    case FaultKind::RawDatagram:
        reply = fault.bytes;
        break;
    case FaultKind::DuplicateReply:
        datagrams.append(reply);
        break;
    default:
        break;
    }
}

bool silences(const Fault& fault, QueryWay way)
{
    return fault.kind == FaultKind::NoReply ||
           (fault.kind == FaultKind::DirectOnly && way == QueryWay::ToAll);
}

} // namespace

QByteArray discoveryReply(const DeviceDescription& device, const QString& address,
                          const QString& mac)
{
    QByteArray bytes = datagram(replyFlag, address, macBytes(mac));
    bytes[bytes.size() - 1] = 1;
    bytes += counted(device.label.toUtf8()) + counted(device.model.toUtf8()) +
             counted(device.version.toUtf8());
    setLength(bytes, bytes.size() - prefixSize);
    return bytes;
}

QList<QByteArray> planDatagrams(const QByteArray& reply, QueryWay way, const QList<Fault>& faults)
{
    QList<QByteArray> datagrams{reply};
    for (const Fault& fault : faults) {
        if (silences(fault, way)) {
            return {};
        }
        apply(datagrams, fault);
    }
    return datagrams;
}

bool isDiscoveryQuery(const QByteArray& datagram)
{
    return datagram.startsWith(magic) && datagram.size() > flagsOffset &&
           (datagram.at(flagsOffset) & replyFlag) == 0;
}

std::optional<QString> queryDifference(const QByteArray& given, const QString& sender)
{
    const QByteArray prescribed = datagram(0, sender, QByteArray(6, '\0'));
    if (given == prescribed) {
        return std::nullopt;
    }
    if (given.size() != prescribed.size()) {
        return QStringLiteral("query: expected %1 bytes, got %2")
            .arg(prescribed.size())
            .arg(given.size());
    }
    qsizetype offset = 0;
    while (given.at(offset) == prescribed.at(offset)) {
        ++offset;
    }
    return QStringLiteral("query: byte %1: expected 0x%2, got 0x%3")
        .arg(QString::number(offset), QLatin1String(prescribed.mid(offset, 1).toHex()),
             QLatin1String(given.mid(offset, 1).toHex()));
}
