#include "resumexml.h"

#include "boundedxml.h"
#include "halllimits.h"
#include "orderedxml.h"
#include "resumecells.h"
#include "resumeforms.h"
#include "wizardpage.h"

#include <algorithm>
#include <array>

namespace {

/// A name as a string without a copy of it: names last as long as the program.
QString literal(QStringView name)
{
    return QString::fromRawData(name.data(), name.size());
}

QString toText(int number)
{
    return QString::number(number);
}

QString toText(bool isSet)
{
    return isSet ? QStringLiteral("1") : QStringLiteral("0");
}

QString toText(const QString& text)
{
    return text;
}

QString toText(const QList<QPoint>& cells)
{
    return writeCells(cells);
}

/// 0 for what is no number.
void fromText(QStringView text, int& number)
{
    number = text.toInt();
}

void fromText(QStringView text, bool& isSet)
{
    isSet = text == u"1";
}

void fromText(QStringView text, QString& copy)
{
    copy = text.toString();
}

void fromText(QStringView text, QList<QPoint>& cells)
{
    cells = readCells(text);
}

template <typename Record>
void writeRecord(OrderedXml& xml, const Record& record)
{
    xml.start(literal(formOf<Record>.element));
    const auto write = [&](const auto& field) {
        xml.attribute(literal(field.name), toText(record.*field.member));
    };
    std::apply([&](const auto&... field) { (write(field), ...); }, formOf<Record>.fields);
    xml.end();
}

/// What the current element does not say stays as it is in a new record.
template <typename Record>
Record readRecord(const BoundedXml& xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    Record record;
    const auto read = [&](const auto& field) {
        const QString name = literal(field.name);
        if (attributes.hasAttribute(name)) {
            fromText(attributes.value(name), record.*field.member);
        }
    };
    std::apply([&](const auto&... field) { (read(field), ...); }, formOf<Record>.fields);
    return record;
}

bool isRoomNumber(int number)
{
    return number >= 0 && number <= RoomInfo::maxRooms;
}

/// What the wizard could have written of a record, if anything.
template <typename Record>
std::optional<Record> plausible(const Record& record)
{
    return record;
}

std::optional<SavedDevice> plausible(const SavedDevice& device)
{
    SavedDevice placed = device;
    placed.roomNumber = isRoomNumber(device.roomNumber) ? device.roomNumber : 0;
    return placed;
}

std::optional<RoomInfo> plausible(const RoomInfo& room)
{
    return isRoomNumber(room.number) ? std::optional(room) : std::nullopt;
}

std::optional<SceneInfo> plausible(const SceneInfo& scene)
{
    return scene.roomGroup.size() <= HallLimits::maxReadLayoutLength ? std::optional(scene)
                                                                     : std::nullopt;
}

template <typename Record>
void writeList(OrderedXml& xml, const QList<Record>& records)
{
    xml.start(literal(formOf<Record>.list));
    for (const Record& record : records) {
        writeRecord(xml, record);
    }
    xml.end();
}

/// The children of the current list element; those of another name are passed over.
template <typename Record>
QList<Record> readList(BoundedXml& xml)
{
    QList<Record> records;
    while (xml.enterChild()) {
        const std::optional<Record> record =
            xml.tag() == formOf<Record>.element ? plausible(readRecord<Record>(xml)) : std::nullopt;
        if (record) {
            records.append(*record);
        }
        xml.leave();
    }
    return records;
}

struct SectionWriter
{
    OrderedXml& xml;

    template <typename Record>
    void operator()(const QList<Record>& records) const
    {
        writeList(xml, records);
    }
    void operator()(QSize windowSize) const
    {
        writeRecord(xml, WindowSides{windowSize.width(), windowSize.height()});
    }
};

template <typename Record>
SavedSection readSection(BoundedXml& xml)
{
    return readList<Record>(xml);
}

SavedSection readScenes(BoundedXml& xml)
{
    QList<SceneInfo> scenes = readList<SceneInfo>(xml);
    scenes.resize(std::min(scenes.size(), qsizetype(HallLimits::maxReadLayoutCount)));
    return scenes;
}

/// A size that no window has counts as never set.
SavedSection readWindowSize(BoundedXml& xml)
{
    const auto sides = readRecord<WindowSides>(xml);
    xml.leave();
    const QSize size(sides.width, sides.height);
    const QSize largest(HallLimits::maxReadWindowSide, HallLimits::maxReadWindowSide);
    return size.isValid() && size.boundedTo(largest) == size ? size : QSize();
}

struct SectionReader
{
    QStringView tag;
    SavedSection (*read)(BoundedXml& xml) = nullptr;
};

constexpr std::array sectionReaders = {
    SectionReader{formOf<SavedDevice>.list, readSection<SavedDevice>},
    SectionReader{formOf<RoomInfo>.list, readSection<RoomInfo>},
    SectionReader{formOf<SceneInfo>.list, readScenes},
    SectionReader{formOf<DeviceSetInfo>.list, readSection<DeviceSetInfo>},
    SectionReader{formOf<PresetInfo>.list, readSection<PresetInfo>},
    SectionReader{formOf<WindowSides>.element, readWindowSize},
};

void readSections(BoundedXml& xml, SavedWork& work)
{
    while (xml.enterChild()) {
        const auto reader =
            std::find_if(sectionReaders.begin(), sectionReaders.end(),
                         [&](const SectionReader& known) { return known.tag == xml.tag(); });
        if (reader == sectionReaders.end()) {
            work.hasForeignElement = true;
            return;
        }
        work.sections.append(reader->read(xml));
    }
}

std::optional<int> readPageIndex(const BoundedXml& xml)
{
    bool ok = false;
    const int index = xml.attributes().value(literal(ResumeRoot::page)).toInt(&ok);
    return ok && index >= 0 && index < pageCount ? std::optional(index) : std::nullopt;
}

} // namespace

QString writeResumeXml(const SavedWork& work)
{
    OrderedXml xml;
    xml.start(literal(ResumeRoot::element));
    xml.attribute(literal(ResumeRoot::page), work.pageIndex);
    for (const SavedSection& section : work.sections) {
        std::visit(SectionWriter{xml}, section);
    }
    xml.end();
    return xml.text();
}

std::optional<SavedWork> readResumeXml(const QString& text)
{
    BoundedXml xml(text);
    if (!xml.enterChild() || xml.tag() != ResumeRoot::element) {
        return std::nullopt;
    }
    const std::optional<int> pageIndex = readPageIndex(xml);
    if (!pageIndex) {
        return std::nullopt;
    }
    SavedWork work;
    work.pageIndex = *pageIndex;
    readSections(xml, work);
    // A text that breaks off later on is refused whole, not used up to the break.
    return xml.finish() ? std::optional(work) : std::nullopt;
}
