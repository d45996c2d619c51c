#include "resumexml.h"

#include "boundedxml.h"
#include "records.h"
#include "resumecells.h"
#include "wizardpage.h"

#include <algorithm>
#include <array>

namespace {

constexpr int maxWindowSide = 10000;
// Ten times what the wizard makes: more would only stall its pages.
constexpr qsizetype maxLayouts = 100;
constexpr qsizetype maxRoomGroupLength = 64;

/// The attributes of one element by name.
class Attributes
{
public:
    explicit Attributes(const BoundedXml& xml)
        : m_attributes(xml.attributes())
    {
    }

    bool has(const char* name) const { return m_attributes.hasAttribute(QLatin1String(name)); }
    QString text(const char* name) const
    {
        return m_attributes.value(QLatin1String(name)).toString();
    }
    bool isSet(const char* name) const { return m_attributes.value(QLatin1String(name)) == u"1"; }

    /// 0 for what is no number.
    int number(const char* name, bool* ok = nullptr) const
    {
        return m_attributes.value(QLatin1String(name)).toInt(ok);
    }

private:
    QXmlStreamAttributes m_attributes;
};

bool isRoomNumber(int number)
{
    return number >= 0 && number <= RoomInfo::maxRooms;
}

std::optional<SavedDevice> readDevice(const Attributes& attributes)
{
    const int room = attributes.number("Room");
    return SavedDevice{attributes.text("Label"),      attributes.text("IP"),
                       attributes.text("MacAddress"), attributes.text("Model"),
                       isRoomNumber(room) ? room : 0, attributes.isSet("ModifiedLabel")};
}

std::optional<RoomInfo> readRoom(const Attributes& attributes)
{
    const int number = attributes.number("Number");
    if (!isRoomNumber(number)) {
        return std::nullopt;
    }
    return RoomInfo{number, readCells(attributes.text("PosList"))};
}

std::optional<SceneInfo> readScene(const Attributes& attributes)
{
    const QString roomGroup = attributes.text("RoomGroup");
    if (roomGroup.size() > maxRoomGroupLength) {
        return std::nullopt;
    }
    return SceneInfo{attributes.number("Number"), roomGroup, {}};
}

std::optional<DeviceSetInfo> readDeviceSet(const Attributes& attributes)
{
    DeviceSetInfo record;
    record.deviceSetNumber = attributes.number("DeviceSetNumber");
    record.sceneNumber = attributes.number("SceneNumber");
    record.ipAddress = attributes.text("IP");
    record.remove = attributes.isSet("Remove");
    if (attributes.has("SpeakerPosition")) {
        record.speakerPosition = attributes.text("SpeakerPosition");
    }
    return record;
}

std::optional<PresetInfo> readPreset(const Attributes& attributes)
{
    return PresetInfo{attributes.number("DeviceSetNumber"), attributes.number("SceneNumber"),
                      attributes.text("PresetName")};
}

/// The children of the current list element; those of another name are passed over.
template <typename Record>
QList<Record> readList(BoundedXml& xml, QStringView tag,
                       std::optional<Record> (*read)(const Attributes&))
{
    QList<Record> records;
    while (xml.enterChild()) {
        const std::optional<Record> record =
            xml.tag() == tag ? read(Attributes(xml)) : std::nullopt;
        if (record) {
            records.append(*record);
        }
        xml.leave();
    }
    return records;
}

SavedSection readDevices(BoundedXml& xml)
{
    return readList(xml, u"DeviceData", readDevice);
}

SavedSection readRooms(BoundedXml& xml)
{
    return readList(xml, u"RoomInfo", readRoom);
}

SavedSection readScenes(BoundedXml& xml)
{
    QList<SceneInfo> scenes = readList(xml, u"SceneInfo", readScene);
    scenes.resize(std::min(scenes.size(), maxLayouts));
    return scenes;
}

SavedSection readDeviceSets(BoundedXml& xml)
{
    return readList(xml, u"DeviceSetInfo", readDeviceSet);
}

SavedSection readPresets(BoundedXml& xml)
{
    return readList(xml, u"PresetInfo", readPreset);
}

/// A size that no window has counts as never set.
SavedSection readWindowSize(BoundedXml& xml)
{
    const Attributes attributes(xml);
    const QSize size(attributes.number("Width"), attributes.number("Height"));
    xml.leave();
    const QSize largest(maxWindowSide, maxWindowSide);
    return size.isValid() && size.boundedTo(largest) == size ? size : QSize();
}

struct SectionReader
{
    QStringView tag;
    SavedSection (*read)(BoundedXml& xml) = nullptr;
};

constexpr std::array sectionReaders = {
    SectionReader{u"DeviceDataList", readDevices},
    SectionReader{u"RoomInfoList", readRooms},
    SectionReader{u"SceneInfoList", readScenes},
    SectionReader{u"DeviceSetInfoList", readDeviceSets},
    SectionReader{u"PresetInfoList", readPresets},
    SectionReader{u"WindowSize", readWindowSize},
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
    const int index = Attributes(xml).number("Page", &ok);
    return ok && index >= 0 && index < pageTotal ? std::optional(index) : std::nullopt;
}

} // namespace

std::optional<SavedWork> readResumeXml(const QString& text)
{
    BoundedXml xml(text);
    if (!xml.enterChild() || xml.tag() != u"Tessel") {
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
