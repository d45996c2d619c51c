// 250 discovery replies: parsed and entered into the document, beside parsing the same bytes by
// hand, handing the values over in a map under the same keys, and appending the record to a list.

#include "benchdocument.h"
#include "benchpair.h"
#include "benchrows.h"
#include "datakey.h"
#include "devicequeries.h"
#include "discoverypacket.h"
#include "mactext.h"
#include "stopwatch.h"
#include "tesseldoc.h"

#include <QHostAddress>
#include <QVariantMap>
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
        addDevice(doc, {.label = packet->nameText,
                        .modelName = packet->modelText,
                        .version = packet->trailingText,
                        .ipAddress = packet->ipText,
                        .macAddress = formatMac(packet->mac),
                        .searchType = QStringLiteral("QNFL"),
                        .password = QString()});
    }
    watch.stop();
}

QString takeText(const QByteArray& bytes, qsizetype& at)
{
    const auto length = qsizetype(uchar(bytes.at(at)));
    QString text = QString::fromUtf8(bytes.constData() + at + 1, length);
    at += 1 + length;
    return text;
}

QVariantMap parseByHand(const QByteArray& bytes)
{
    QVariantMap data;
    data.insert(DataKey::deviceIPAddress(),
                QHostAddress(qFromBigEndian<quint32>(bytes.constData() + 8)).toString());
    data.insert(DataKey::deviceMacAddress(),
                QString::fromLatin1(bytes.mid(24, 6).toHex(':').toUpper()));
    qsizetype at = 30;
    const QString service = takeText(bytes, at);
    at += 2;
    data.insert(DataKey::deviceLabel(), takeText(bytes, at));
    data.insert(DataKey::deviceModelName(), takeText(bytes, at));
    data.insert(DataKey::deviceVersion(), takeText(bytes, at));
    data.insert(DataKey::deviceSearchType(), QStringLiteral("QNFL"));
    return data;
}

void enterByHand(QList<DeviceData>& devices, const QVariantMap& data)
{
    DeviceData device;
    device.label = data.value(DataKey::deviceLabel()).toString();
    device.ipAddress = data.value(DataKey::deviceIPAddress()).toString();
    device.modelName = data.value(DataKey::deviceModelName()).toString();
    device.version = data.value(DataKey::deviceVersion()).toString();
    device.macAddress = data.value(DataKey::deviceMacAddress()).toString();
    device.searchType = data.value(DataKey::deviceSearchType()).toString();
    device.password = data.value(DataKey::devicePassword()).toString();
    device.roomNumber = data.value(DataKey::roomNumber()).toInt();
    if (device.modelName.startsWith(u"PX-") || device.modelName == u"LQA4-08S" ||
        device.modelName == u"DSK4M" || device.modelName == u"PNB-QE7") {
        if (device.version.split(u'.').first().toInt() >= 2) {
            devices.append(device);
        }
    }
}

void parseAllByHand(const QList<QByteArray>& datagrams, Stopwatch& watch)
{
    QList<DeviceData> devices;
    watch.start();
    for (const QByteArray& bytes : datagrams) {
        if (bytes.startsWith("QNFL") &&
            bytes.size() == 6 + qFromBigEndian<quint16>(bytes.constData() + 4)) {
            enterByHand(devices, parseByHand(bytes));
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
