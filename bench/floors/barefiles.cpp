#include "barefiles.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace {

constexpr int slotCount = 24;

QList<DeviceSetInfo> companions(const HallRecords& hall, const QString& hub, int layout)
{
    const auto own = std::find_if(hall.sets.cbegin(), hall.sets.cend(), [&](const auto& record) {
        return record.sceneNumber == layout && record.ipAddress == hub;
    });
    QList<DeviceSetInfo> found;
    for (const DeviceSetInfo& record : hall.sets) {
        if (record.sceneNumber == layout && record.deviceSetNumber == own->deviceSetNumber &&
            !record.remove && record.ipAddress != hub) {
            found.append(record);
        }
    }
    return found;
}

void writeSlots(QXmlStreamWriter& writer, const QString& name, const QStringList& values,
                const QString& unused)
{
    for (int slot = 0; slot < slotCount; ++slot) {
        writer.writeAttribute(name + QString::number(slot + 1), values.value(slot, unused));
    }
}

void writeName(QXmlStreamWriter& writer, const DeviceData& device, const QString& mode)
{
    if (device.labelModified) {
        writer.writeAttribute(QStringLiteral("sys.systemname"), device.label);
        writer.writeAttribute(QStringLiteral("sys.systemname-mode"), mode);
    }
}

// What `write` puts into the one element below the root.
template <typename Write>
QString file(const Write& write)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartElement(QStringLiteral("provisioning"));
    writer.writeStartElement(QStringLiteral("config"));
    write(writer);
    writer.writeEndElement();
    writer.writeEndElement();
    return text.trimmed() + u'\n';
}

} // namespace

QString BareFiles::hubFile(const HallRecords& hall, const QString& hub, int layout)
{
    QStringList addresses;
    QStringList positions;
    for (const DeviceSetInfo& member : companions(hall, hub, layout)) {
        addresses.append(hall.deviceAt.value(member.ipAddress).macAddress);
        positions.append(member.speakerPosition == u"L" ? QStringLiteral("1")
                                                        : QStringLiteral("2"));
    }
    return file([&](QXmlStreamWriter& writer) {
        writeSlots(writer, QStringLiteral("peripheral.mac-addr"), addresses,
                   QStringLiteral("00:00:00:00:00:00"));
        writeSlots(writer, QStringLiteral("peripheral.position"), positions, QStringLiteral("1"));
        writeName(writer, hall.deviceAt.value(hub), QStringLiteral("0"));
    });
}

QStringList BareFiles::peripherals(const HallRecords& hall, const QString& hub, int layout)
{
    QStringList addresses;
    for (const DeviceSetInfo& member : companions(hall, hub, layout)) {
        if (hall.deviceAt.value(member.ipAddress).modelName != u"PX-HB") {
            addresses.append(member.ipAddress);
        }
    }
    return addresses;
}

QString BareFiles::peripheralFile(const DeviceData& device)
{
    const bool accessPoint = device.modelName.startsWith(u"PX-NDE");
    return file([&](QXmlStreamWriter& writer) {
        writeName(writer, device, accessPoint ? QStringLiteral("1") : QStringLiteral("0"));
    });
}
