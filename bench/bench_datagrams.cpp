// 250 discovery replies: parsed and entered into the document, beside parsing the same bytes by
// hand into a list of texts.

#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "devicequeries.h"
#include "discoverypacket.h"
#include "mactext.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QHostAddress>
#include <QtEndian>

namespace {

constexpr int replies = 250;

void appendText(QByteArray& packet, const QByteArray& text)
{
    packet += char(text.size());
    packet += text;
}

QByteArray reply(int device)
{
    QByteArray packet("QNFL00\x80\x04", 8);
    const quint32 address = QHostAddress(benchAddress(device)).toIPv4Address();
    for (int shift = 24; shift >= 0; shift -= 8) {
        packet += char((address >> shift) & 0xFF);
    }
    packet.append(12, '\0');
    packet += QByteArray("\x02\x1A\x00\x01", 4) + char(device / 256) + char(device % 256);
    appendText(packet, "_qno-scp");
    packet += QByteArray("\x00\x01", 2);
    appendText(packet, "Microphone-" + QByteArray::number(device));
    appendText(packet, "PX-DL5");
    appendText(packet, "2.1.0");
    packet[4] = char((packet.size() - 6) / 256);
    packet[5] = char((packet.size() - 6) % 256);
    return packet;
}

QList<QByteArray> allReplies()
{
    QList<QByteArray> all;
    for (int device = 0; device < replies; ++device) {
        all.append(reply(device));
    }
    return all;
}

void parseAndEnter(const QList<QByteArray>& datagrams, Stopwatch& watch)
{
    TesselDoc doc(nullptr);
    watch.start();
    for (const QByteArray& bytes : datagrams) {
        const auto packet = parseDiscoveryPacket(bytes);
        addDevice(doc, {packet->nameText, packet->modelText, packet->trailingText, packet->ipText,
                        formatMac(packet->mac), QStringLiteral("QNFL"), QString()});
    }
    watch.stop();
}

struct Entry
{
    QString address, mac, service, name, model, version;
};

QString takeText(const QByteArray& bytes, qsizetype& at)
{
    const auto length = qsizetype(uchar(bytes.at(at)));
    QString text = QString::fromUtf8(bytes.constData() + at + 1, length);
    at += 1 + length;
    return text;
}

Entry parseByHand(const QByteArray& bytes)
{
    Entry entry;
    entry.address = QHostAddress(qFromBigEndian<quint32>(bytes.constData() + 8)).toString();
    entry.mac = QString::fromLatin1(bytes.mid(24, 6).toHex(':').toUpper());
    qsizetype at = 30;
    entry.service = takeText(bytes, at);
    at += 2;
    entry.name = takeText(bytes, at);
    entry.model = takeText(bytes, at);
    entry.version = takeText(bytes, at);
    return entry;
}

void parseAllByHand(const QList<QByteArray>& datagrams, Stopwatch& watch)
{
    QList<Entry> entries;
    watch.start();
    for (const QByteArray& bytes : datagrams) {
        if (bytes.startsWith("QNFL") &&
            bytes.size() == 6 + qFromBigEndian<quint16>(bytes.constData() + 4)) {
            entries.append(parseByHand(bytes));
        }
    }
    watch.stop();
}

} // namespace

void registerDatagrams()
{
    const QList<QByteArray> datagrams = allReplies();
    registerPair(
        QStringLiteral("datagrams"), 200,
        [=](Stopwatch& watch) { parseAllByHand(datagrams, watch); },
        [=](Stopwatch& watch) { parseAndEnter(datagrams, watch); });
}
