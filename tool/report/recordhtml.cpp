#include "recordhtml.h"

#include "hallhubs.h"
#include "hallrecord.h"
#include "hallview.h"
#include "hallwords.h"
#include "recordmarkup.h"
#include "recordpicture.h"
#include "recordstyle.h"

#include <algorithm>

using namespace RecordMarkup;

namespace {

constexpr int drawingSide = 300; // pixels of a screen, 80 mm on paper
constexpr int layoutSide = 150;
constexpr int sampleSide = 24;

QString notRecorded()
{
    return QStringLiteral("not recorded");
}

QString orNotRecorded(const QString& told)
{
    return told.isEmpty() ? notRecorded() : foreign(told);
}

QString breachItems(const QList<LimitBreach>& breaches)
{
    QString items;
    for (const LimitBreach& breach : breaches) {
        items += element("p", element("strong", escaped(breachWords(breach))), "counts");
    }
    return items;
}

QString walkSummary(const HallRecord& record)
{
    if (!record.walk) {
        return notRecorded();
    }
    if (!record.walk->isOfThisHall()) {
        return QStringLiteral("one through another hall; it is left out");
    }
    return record.walk->isRight()
               ? QStringLiteral("every layout was read back from every hub")
               : QStringLiteral("not everything was as it should be; see \"The walk\"");
}

QString factRow(const QString& name, const QString& fact)
{
    return element("tr", QStringLiteral("<th scope=\"row\" width=\"25%\">%1</th>").arg(name) +
                             element("td", fact));
}

QString layoutsFact(qsizetype count)
{
    const QString number = QString::number(count);
    return count > 1 ? number + QStringLiteral("; layout 1 is preset 1 of every hub, and so on")
                     : number;
}

QString facts(const HallRecord& record)
{
    const DocumentData& hall = record.hall->data();
    return element(
        "table",
        element("tbody",
                factRow(QStringLiteral("Configuration"), foreign(record.fileName)) +
                    factRow(QStringLiteral("As of"), record.date.toString(Qt::ISODate) +
                                                         QStringLiteral(", ") + record.dateWords) +
                    factRow(QStringLiteral("Rooms"), QString::number(hall.rooms.size())) +
                    factRow(QStringLiteral("Devices"), QString::number(hall.devices.size())) +
                    factRow(QStringLiteral("Layouts"), layoutsFact(hall.scenes.size())) +
                    factRow(QStringLiteral("Walk"), walkSummary(record))));
}

QString list(const QStringList& lines)
{
    QString items;
    for (const QString& line : lines) {
        items += element("li", foreign(line));
    }
    return element("ul", items);
}

QString faultList(const HallRecord& record)
{
    const QStringList faults = recordFaults(record) + walkFailures(record);
    return faults.isEmpty() ? QString()
                            : element("h2", QStringLiteral("Not as it should be")) + list(faults);
}

QString legend(const QList<RoomView>& rooms)
{
    QString rows;
    for (const RoomView& room : rooms) {
        const QString name = QStringLiteral("Room %1").arg(room.number);
        rows +=
            element("tr", element("td", picture(roomSamplePng(room.number), sampleSide,
                                                QStringLiteral("Sample of ") + name)) +
                              rowHead(name) + element("td", QString::number(room.devices.size())));
    }
    return table({{QStringLiteral("Drawn as"), 20},
                  {QStringLiteral("Room"), 20},
                  {QStringLiteral("Devices"), 60}},
                 rows);
}

QString drawing(const HallRecord& record, const QList<RoomView>& rooms)
{
    const QString title = element("h2", QStringLiteral("The hall"));
    if (rooms.isEmpty()) {
        return title + element("p", QStringLiteral("No rooms are drawn."));
    }
    return title +
           element("p",
                   picture(drawnRoomsPng(record.hall->data().rooms), drawingSide,
                           QStringLiteral("The rooms of the hall as they were drawn")),
                   "picture") +
           element("p",
                   QStringLiteral("Every cell bears the number of its room. In the pictures of "
                                  "layouts, the rooms of one combined room have the colour and the "
                                  "hatching of the lowest of them."),
                   "counts") +
           legend(rooms);
}

QString deviceRow(const HallRecord& record, const DeviceData& device)
{
    const FoundDevice told = record.found ? record.found->of(device) : FoundDevice();
    return element("tr", rowHead(foreign(device.label)) + element("td", foreign(device.modelName)) +
                             element("td", foreign(device.macAddress)) +
                             element("td", foreign(device.ipAddress)) +
                             element("td", orNotRecorded(told.firmware)) +
                             element("td", orNotRecorded(told.serialNumber)));
}

QString deviceTable(const HallRecord& record, const QList<const DeviceData*>& devices)
{
    if (devices.isEmpty()) {
        return element("p", QStringLiteral("There are no devices in it."));
    }
    QString rows;
    for (const DeviceData* device : devices) {
        rows += deviceRow(record, *device);
    }
    return table({{QStringLiteral("Device"), 20},
                  {QStringLiteral("Model"), 12},
                  {QStringLiteral("MAC address"), 21},
                  {QStringLiteral("Address"), 17},
                  {QStringLiteral("Firmware"), 13},
                  {QStringLiteral("Serial number"), 17}},
                 rows);
}

QString devicesOfRooms(const HallRecord& record, const QList<RoomView>& rooms)
{
    QString text = element("h2", QStringLiteral("Devices"));
    for (const RoomView& room : rooms) {
        text += element("h3", QStringLiteral("Room %1").arg(room.number)) +
                element("p", escaped(roomCountWords(room.tally.counts)), "counts") +
                breachItems(room.tally.breaches) + deviceTable(record, room.devices);
    }
    return text;
}

QString unplacedDevices(const HallRecord& record)
{
    QList<const DeviceData*> devices;
    for (const DeviceData& device : record.hall->data().devices.all()) {
        if (device.roomNumber == 0) {
            devices.append(&device);
        }
    }
    return devices.isEmpty()
               ? QString()
               : element("h3", QStringLiteral("In no room")) + deviceTable(record, devices);
}

QString presetCell(const std::optional<QString>& name)
{
    if (!name) {
        return QStringLiteral("none yet");
    }
    return name->isEmpty() ? QStringLiteral("without a name") : foreign(*name);
}

QString roomsName(const RoomGroup& group)
{
    return QStringLiteral("Room ") + escaped(layoutText({group.rooms}));
}

QString memberRow(const MemberView& member)
{
    const DeviceData device = member.device != nullptr ? *member.device : DeviceData();
    const QString use = useWords(member);
    return element("tr", rowHead(foreign(device.label)) + element("td", foreign(device.modelName)) +
                             element("td", foreign(member.address)) +
                             element("td", member.isRemoved ? element("strong", use) : use));
}

QString memberTable(const CombinedRoomView& view, const DocumentData& hall)
{
    if (view.members.isEmpty()) {
        return element("p", emptinessWords(view.group, hall));
    }
    QString rows;
    for (const MemberView& member : view.members) {
        rows += memberRow(member);
    }
    return table({{QStringLiteral("Device"), 43},
                  {QStringLiteral("Model"), 19},
                  {QStringLiteral("Address"), 22},
                  {QStringLiteral("Use"), 16}},
                 rows);
}

QString combinedRoom(const CombinedRoomView& view, const DocumentData& hall)
{
    return element("h4", roomsName(view.group)) +
           element("p", escaped(setCountWords(view.tally.counts)), "counts") +
           breachItems(view.tally.breaches) + memberTable(view, hall);
}

qsizetype usedCount(const CombinedRoomView& view)
{
    return std::count_if(view.members.begin(), view.members.end(),
                         [](const MemberView& member) { return !member.isRemoved; });
}

QString presetTable(const QList<CombinedRoomView>& views)
{
    QString rows;
    for (const CombinedRoomView& view : views) {
        rows += element("tr", rowHead(roomsName(view.group)) +
                                  element("td", presetCell(view.presetName)) +
                                  element("td", QString::number(usedCount(view))));
    }
    return table({{QStringLiteral("Combined room"), 25},
                  {QStringLiteral("Name of its preset"), 55},
                  {QStringLiteral("Devices used"), 20}},
                 rows);
}

QString layout(const SceneInfo& scene, const QList<CombinedRoomView>& all, const DocumentData& hall)
{
    QList<CombinedRoomView> views;
    QString rooms;
    for (const CombinedRoomView& view : all) {
        if (view.group.sceneNumber == scene.number) {
            views.append(view);
            rooms += combinedRoom(view, hall);
        }
    }
    const QString name = QStringLiteral("Layout %1: %2").arg(scene.number);
    return element("h3", name.arg(foreign(scene.roomGroup))) +
           element(
               "p",
               picture(layoutPng(hall.rooms, scene.roomGroup), layoutSide,
                       QStringLiteral("The rooms as %1 combines them: %2")
                           .arg(QStringLiteral("layout %1").arg(scene.number), scene.roomGroup)),
               "picture") +
           presetTable(views) + rooms;
}

QString layouts(const HallRecord& record)
{
    const DocumentData& hall = record.hall->data();
    QString text = element("h2", QStringLiteral("Layouts"));
    if (hall.scenes.isEmpty()) {
        return text + element("p", QStringLiteral("There are none."));
    }
    const QList<CombinedRoomView> views = combinedRoomViews(*record.hall);
    for (const SceneInfo& scene : hall.scenes) {
        text += layout(scene, views, hall);
    }
    return text;
}

QString walkCell(const QString& outcome)
{
    return element("td", outcome == u"ok" ? outcome : element("strong", outcome));
}

/// As many hubs as a page is wide enough for.
QString walkTable(const HallRecord& record, const QList<DeviceData>& hubs)
{
    QList<Column> columns{{QStringLiteral("Layout"), 10}, {QStringLiteral("Rooms"), 20}};
    for (const DeviceData& hub : hubs) {
        columns.append({foreign(hub.label) + QStringLiteral("<br>") + foreign(hub.ipAddress),
                        int(70 / hubs.size())});
    }
    QString rows;
    for (const SceneInfo& scene : record.hall->data().scenes) {
        QString cells =
            rowHead(QString::number(scene.number)) + element("td", foreign(scene.roomGroup));
        for (const DeviceData& hub : hubs) {
            cells += walkCell(record.walk->words(scene, hub));
        }
        rows += element("tr", cells);
    }
    return table(columns, rows);
}

QString walk(const HallRecord& record)
{
    constexpr qsizetype maxHubsBeside = 4;
    if (!record.walk || !record.walk->isOfThisHall()) {
        return {};
    }
    QString text = element("h2", QStringLiteral("The walk")) +
                   element("p",
                           QStringLiteral("Begun %1 at %2. Each layout was recalled on all hubs, "
                                          "and each hub then told which preset was active.")
                               .arg(record.walk->begun().date().toString(Qt::ISODate),
                                    record.walk->begun().time().toString(QStringLiteral("HH:mm"))),
                           "counts");
    const DocumentData& hall = record.hall->data();
    const QList<DeviceData> hubs = hall.scenes.isEmpty() ? QList<DeviceData>() : placedHubs(hall);
    for (qsizetype first = 0; first < hubs.size(); first += maxHubsBeside) {
        text += walkTable(record, hubs.mid(first, maxHubsBeside));
    }
    const QStringList& notBack = record.walk->notBack();
    return notBack.isEmpty()
               ? text
               : text + element("p", QStringLiteral("Not put back afterwards:"), "counts") +
                     list(notBack);
}

QString head(const HallRecord& record)
{
    return element(
        "head", QStringLiteral("<meta charset=\"utf-8\">") +
                    QStringLiteral("<meta name=\"viewport\" "
                                   "content=\"width=device-width, initial-scale=1\">") +
                    element("title", QStringLiteral("Hall record: ") + escaped(record.fileName)) +
                    element("style", recordStyle(record.paper)));
}

} // namespace

QString recordHtml(const HallRecord& record)
{
    const QList<RoomView> rooms = roomViews(*record.hall);
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n") + head(record) +
           element("body",
                   element("main", element("h1", QStringLiteral("Hall record")) + facts(record) +
                                       faultList(record) + drawing(record, rooms) +
                                       devicesOfRooms(record, rooms) + unplacedDevices(record) +
                                       layouts(record) + walk(record))) +
           QStringLiteral("</html>\n");
}
