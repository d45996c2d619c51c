#include "halltext.h"

#include "displaywidth.h"
#include "griddrawing.h"
#include "halldocument.h"
#include "hallview.h"
#include "hallwords.h"
#include "roomtext.h"
#include "texttable.h"

namespace {

QStringList deviceHeadings()
{
    return {QStringLiteral("Device"), QStringLiteral("Model"), QStringLiteral("Address"),
            QStringLiteral("MAC address")};
}

QStringList cellsOf(const DeviceData& device)
{
    return {device.label, device.modelName, device.ipAddress, device.macAddress};
}

QString inLines(const QString& text)
{
    return wrapped(printable(text), TextTable::usualWidth).join(u'\n') + u'\n';
}

QString breachText(const QList<LimitBreach>& breaches)
{
    QString text;
    for (const LimitBreach& breach : breaches) {
        text += inLines(QStringLiteral("!! ") + breachWords(breach));
    }
    return text;
}

QString title(const QString& text)
{
    return u'\n' + inLines(text);
}

QString roomText(const RoomView& view)
{
    QString text = title(QStringLiteral("Room %1").arg(view.number)) +
                   inLines(roomCountWords(view.tally.counts)) + breachText(view.tally.breaches);
    TextTable table(deviceHeadings());
    for (const DeviceData* device : view.devices) {
        table.addRow(cellsOf(*device));
    }
    return table.isEmpty() ? text : text + u'\n' + table.text();
}

QString unplacedText(const HallDocument& hall)
{
    TextTable table(deviceHeadings());
    for (const DeviceData& device : hall.data().devices.all()) {
        if (device.roomNumber == 0) {
            table.addRow(cellsOf(device));
        }
    }
    return table.isEmpty() ? QString() : title(QStringLiteral("In no room")) + u'\n' + table.text();
}

QString membersText(const QList<MemberView>& members)
{
    TextTable table({QStringLiteral("Device"), QStringLiteral("Model"), QStringLiteral("Address"),
                     QStringLiteral("Use")});
    for (const MemberView& member : members) {
        const DeviceData device = member.device != nullptr ? *member.device : DeviceData();
        table.addRow({device.label, device.modelName, member.address, useWords(member)});
    }
    return u'\n' + table.text();
}

QString presetText(const std::optional<QString>& name)
{
    if (!name) {
        return QStringLiteral("no preset yet");
    }
    return name->isEmpty() ? QStringLiteral("preset without a name")
                           : QStringLiteral("preset \"%1\"").arg(*name);
}

QString combinedRoomText(const CombinedRoomView& view, const DocumentData& hall)
{
    return title(QStringLiteral("Layout %1, room %2: %3")
                     .arg(QString::number(view.group.sceneNumber), layoutText({view.group.rooms}),
                          presetText(view.presetName))) +
           inLines(setCountWords(view.tally.counts)) + breachText(view.tally.breaches) +
           (view.members.isEmpty() ? inLines(emptinessWords(view.group, hall))
                                   : membersText(view.members));
}

QString layoutsText(const QList<SceneInfo>& layouts)
{
    TextTable table({QStringLiteral("Layout"), QStringLiteral("Combined rooms")});
    table.alignRight(0);
    for (const SceneInfo& layout : layouts) {
        table.addRow({QString::number(layout.number), layout.roomGroup});
    }
    return u'\n' + table.text();
}

} // namespace

QString hallText(HallDocument& hall)
{
    QString text = drawnGrid(RoomText::write(hall.data().rooms), RoomText::empty);
    for (const RoomView& view : roomViews(hall)) {
        text += roomText(view);
    }
    text += unplacedText(hall) + layoutsText(hall.data().scenes);
    for (const CombinedRoomView& view : combinedRoomViews(hall)) {
        text += combinedRoomText(view, hall.data());
    }
    return text;
}
