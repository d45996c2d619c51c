// The XML text of a resume file.
//
// - Whatever the text, reading it ends soon, and what is read lies within the wizard's limits: a
//   page that exists, rooms 0 to 4, cells on the grid.
// - What is read and written again reads the same, up to a foreign element, where reading ends;
//   and it is written as the same text.
#include "fuzztarget.h"
#include "guiapplication.h"
#include "resumexml.h"
#include "wizardpage.h"

#include <QRect>

#include <algorithm>
#include <tuple>

namespace {

constexpr int lastRoom = 4;
constexpr QRect grid(0, 0, 8, 8);

auto fields(const SavedDevice& device)
{
    return std::tie(device.label, device.ipAddress, device.macAddress, device.modelName,
                    device.roomNumber, device.labelModified);
}

auto fields(const RoomInfo& room)
{
    return std::tie(room.number, room.positionList);
}

auto fields(const SceneInfo& scene)
{
    return std::tie(scene.number, scene.roomGroup);
}

auto fields(const DeviceSetInfo& record)
{
    return std::tie(record.deviceSetNumber, record.sceneNumber, record.ipAddress, record.remove,
                    record.speakerPosition);
}

auto fields(const PresetInfo& preset)
{
    return std::tie(preset.deviceSetNumber, preset.sceneNumber, preset.presetName);
}

bool isSame(QSize a, QSize b)
{
    return a == b;
}

template <typename Record>
bool isSame(const QList<Record>& a, const QList<Record>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Record& x, const Record& y) { return fields(x) == fields(y); });
}

bool isSameSection(const SavedSection& a, const SavedSection& b)
{
    return a.index() == b.index() &&
           std::visit(
               [&b](const auto& section) {
                   return isSame(section, std::get<std::decay_t<decltype(section)>>(b));
               },
               a);
}

bool isSame(const SavedWork& a, const SavedWork& b)
{
    return a.pageIndex == b.pageIndex &&
           std::equal(a.sections.begin(), a.sections.end(), b.sections.begin(), b.sections.end(),
                      isSameSection);
}

bool isRoom(int number)
{
    return number >= 0 && number <= lastRoom;
}

bool isOnGrid(const RoomInfo& room)
{
    return std::all_of(room.positionList.begin(), room.positionList.end(),
                       [](QPoint cell) { return grid.contains(cell); });
}

void examineLimits(const SavedWork& work)
{
    require(work.pageIndex >= 0 && work.pageIndex < pageCount, "the page exists");
    for (const SavedSection& section : work.sections) {
        if (const auto* rooms = std::get_if<QList<RoomInfo>>(&section)) {
            for (const RoomInfo& room : *rooms) {
                require(isRoom(room.number) && isOnGrid(room), "rooms lie on the grid");
            }
        }
        if (const auto* devices = std::get_if<QList<SavedDevice>>(&section)) {
            for (const SavedDevice& device : *devices) {
                require(isRoom(device.roomNumber), "devices are in rooms");
            }
        }
    }
}

} // namespace

void examine(const QByteArray& input)
{
    provideGuiApplication(); // a layout has a picture, although the text carries none
    const std::optional<SavedWork> work = readResumeXml(QString::fromUtf8(input));
    if (!work) {
        return;
    }
    examineLimits(*work);
    const QString text = writeResumeXml(*work);
    const std::optional<SavedWork> again = readResumeXml(text);
    require(again.has_value(), "what was read and written again is accepted");
    require(!again->hasForeignElement, "no foreign element is written");
    require(isSame(*work, *again), "what was read and written again reads the same");
    require(writeResumeXml(*again) == text, "the same work gives the same text");
}
