// Discovery datagrams.
//
// - Reading any bytes ends well, as they are and with magic and length put right.
// - What is read from an accepted datagram, written again by the encoder below, reads the same.
//   Left out are texts that were not UTF-8 and became too long for a length byte in front of
//   another text, because the replacement character takes three bytes.
// - A query, whatever the local address, is accepted and carries its flags; with an address it has
//   its full size, the service text and that address, and no body.
#include "discoverypacket.h"
#include "fuzztarget.h"

#include <QHostAddress>
#include <QStringList>

#include <optional>

namespace {

constexpr qsizetype headerSize = 6;
constexpr qsizetype addressOffset = 8;
constexpr qsizetype addressSize = 16;
constexpr qsizetype macSize = 6;
constexpr qsizetype longestText = 0x7f; // longer ones are read as "up to the end"
constexpr qsizetype longestFramed = 0x7fff + headerSize;
constexpr qsizetype fullQuerySize = 41;

// The datagram with the magic and the length that it should have.
QByteArray framed(const QByteArray& bytes)
{
    const QByteArray rest = bytes.mid(headerSize).left(longestFramed - headerSize);
    QByteArray packet("QNFL");
    packet += char(rest.size() / 256);
    packet += char(rest.size() % 256);
    return packet + rest;
}

QByteArray encodedAddress(const DiscoveryPacket& packet, const QByteArray& original)
{
    if (packet.ipText.isEmpty()) {
        return QByteArray(1 + addressSize, '\0');
    }
    if (packet.ipText.contains(u':')) { // with minus signs in it, so it says too little
        return '\x06' + original.mid(addressOffset, addressSize);
    }
    QByteArray bytes(1, '\x04');
    for (const QString& number : packet.ipText.split(u'.')) {
        bytes += char(number.toInt());
    }
    return bytes.leftJustified(1 + addressSize, '\0');
}

// A first byte order mark is skipped by whoever reads UTF-8, a second one is text.
QByteArray encodedText(const QString& text)
{
    const bool looksMarked = text.startsWith(QChar::ByteOrderMark);
    const QByteArray bytes = looksMarked ? "\xef\xbb\xbf" + text.toUtf8() : text.toUtf8();
    return char(bytes.size() > longestText ? 0x80 : bytes.size()) + bytes;
}

// Nothing when a text other than the last takes everything up to the end.
std::optional<QByteArray> encodedTexts(const QStringList& texts)
{
    QByteArray all;
    bool ended = false;
    for (const QString& text : texts) {
        if (ended) {
            if (!text.isEmpty()) {
                return std::nullopt;
            }
            continue;
        }
        const QByteArray bytes = encodedText(text);
        ended = bytes.size() > 1 + longestText;
        all += bytes;
    }
    return all;
}

std::optional<QByteArray> encoded(const DiscoveryPacket& packet, const QByteArray& original)
{
    QByteArray bytes(headerSize, '\0');
    bytes += char(packet.replyFlag * 0x80 + packet.modeFlag);
    bytes += encodedAddress(packet, original) + packet.mac;
    const QStringList body{packet.nameText, packet.modelText, packet.trailingText};
    const bool hasBody = !body.join(QString()).isEmpty();
    const QByteArray service = encodedText(packet.serviceText);
    if (packet.mac.size() < macSize || service.size() > 1 + longestText) {
        const bool endsHere = packet.mac.size() < macSize;
        return hasBody ? std::nullopt : std::optional(framed(endsHere ? bytes : bytes + service));
    }
    const std::optional<QByteArray> texts = encodedTexts(body);
    if (!texts) {
        return std::nullopt;
    }
    return framed(bytes + service + '\0' + (hasBody ? '\1' + *texts : QByteArray(1, '\0')));
}

bool isSame(const DiscoveryPacket& a, const DiscoveryPacket& b)
{
    return a.replyFlag == b.replyFlag && a.modeFlag == b.modeFlag && a.ipText == b.ipText &&
           a.mac == b.mac && a.serviceText == b.serviceText && a.nameText == b.nameText &&
           a.modelText == b.modelText && a.trailingText == b.trailingText;
}

void examineDatagram(const QByteArray& bytes)
{
    const std::optional<DiscoveryPacket> packet = parseDiscoveryPacket(bytes);
    const std::optional<QByteArray> again = packet ? encoded(*packet, bytes) : std::nullopt;
    if (again) {
        const std::optional<DiscoveryPacket> reread = parseDiscoveryPacket(*again);
        require(reread.has_value(), "what was read and written again is accepted");
        require(isSame(*packet, *reread), "what was read and written again reads the same");
    }
}

void examineQuery(const QByteArray& input)
{
    const int reply = input.startsWith('r') ? 1 : 0;
    const int mode = input.endsWith('m') ? 1 : 0;
    const QString address = QString::fromUtf8(input);
    const QByteArray query = buildDiscoveryQuery(address, reply, mode);
    const std::optional<DiscoveryPacket> packet = parseDiscoveryPacket(query);
    require(packet.has_value(), "a query is accepted");
    require(packet->replyFlag == reply && packet->modeFlag == mode, "a query keeps its flags");
    const QHostAddress host(address);
    if (host.isNull()) {
        return;
    }
    require(query.size() == fullQuerySize, "a query with an address has its full size");
    require(packet->serviceText == u"_qno-scp", "a query names the service");
    require(packet->nameText.isEmpty() && packet->modelText.isEmpty(), "a query has no body");
    if (host.protocol() == QAbstractSocket::IPv4Protocol) {
        require(packet->ipText == host.toString(), "a query names the local address");
    }
}

} // namespace

void examine(const QByteArray& input)
{
    examineDatagram(input);
    examineDatagram(framed(input));
    examineQuery(input);
}
