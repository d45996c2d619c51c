#include "resumexmlwriter.h"

#include "orderedxml.h"
#include "resumecells.h"
#include "savedwork.h"

namespace {

QString flag(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

void write(OrderedXml& xml, const SavedDevice& device)
{
    xml.start(QStringLiteral("DeviceData"));
    xml.attribute(QStringLiteral("Label"), device.label);
    xml.attribute(QStringLiteral("IP"), device.ipAddress);
    xml.attribute(QStringLiteral("MacAddress"), device.macAddress);
    xml.attribute(QStringLiteral("Model"), device.modelName);
    xml.attribute(QStringLiteral("Room"), device.roomNumber);
    xml.attribute(QStringLiteral("ModifiedLabel"), flag(device.labelModified));
    xml.end();
}

void write(OrderedXml& xml, const RoomInfo& room)
{
    xml.start(QStringLiteral("RoomInfo"));
    xml.attribute(QStringLiteral("Number"), room.number);
    xml.attribute(QStringLiteral("PosList"), writeCells(room.positionList));
    xml.end();
}

void write(OrderedXml& xml, const SceneInfo& scene)
{
    xml.start(QStringLiteral("SceneInfo"));
    xml.attribute(QStringLiteral("Number"), scene.number);
    xml.attribute(QStringLiteral("RoomGroup"), scene.roomGroup);
    xml.end();
}

void write(OrderedXml& xml, const DeviceSetInfo& record)
{
    xml.start(QStringLiteral("DeviceSetInfo"));
    xml.attribute(QStringLiteral("DeviceSetNumber"), record.deviceSetNumber);
    xml.attribute(QStringLiteral("SceneNumber"), record.sceneNumber);
    xml.attribute(QStringLiteral("IP"), record.ipAddress);
    xml.attribute(QStringLiteral("Remove"), flag(record.remove));
    xml.attribute(QStringLiteral("SpeakerPosition"), record.speakerPosition);
    xml.end();
}

void write(OrderedXml& xml, const PresetInfo& preset)
{
    xml.start(QStringLiteral("PresetInfo"));
    xml.attribute(QStringLiteral("DeviceSetNumber"), preset.deviceSetNumber);
    xml.attribute(QStringLiteral("SceneNumber"), preset.sceneNumber);
    xml.attribute(QStringLiteral("PresetName"), preset.presetName);
    xml.end();
}

template <typename Record>
void writeList(OrderedXml& xml, const QString& tag, const QList<Record>& records)
{
    xml.start(tag);
    for (const Record& record : records) {
        write(xml, record);
    }
    xml.end();
}

struct SectionWriter
{
    OrderedXml& xml;

    void operator()(const QList<SavedDevice>& devices) const
    {
        writeList(xml, QStringLiteral("DeviceDataList"), devices);
    }
    void operator()(const QList<RoomInfo>& rooms) const
    {
        writeList(xml, QStringLiteral("RoomInfoList"), rooms);
    }
    void operator()(const QList<SceneInfo>& scenes) const
    {
        writeList(xml, QStringLiteral("SceneInfoList"), scenes);
    }
    void operator()(const QList<DeviceSetInfo>& records) const
    {
        writeList(xml, QStringLiteral("DeviceSetInfoList"), records);
    }
    void operator()(const QList<PresetInfo>& presets) const
    {
        writeList(xml, QStringLiteral("PresetInfoList"), presets);
    }
    void operator()(QSize windowSize) const
    {
        xml.start(QStringLiteral("WindowSize"));
        xml.attribute(QStringLiteral("Width"), windowSize.width());
        xml.attribute(QStringLiteral("Height"), windowSize.height());
        xml.end();
    }
};

} // namespace

QString writeResumeXml(const SavedWork& work)
{
    OrderedXml xml;
    xml.start(QStringLiteral("Tessel"));
    xml.attribute(QStringLiteral("Page"), work.pageIndex);
    for (const SavedSection& section : work.sections) {
        std::visit(SectionWriter{xml}, section);
    }
    xml.end();
    return xml.text();
}
