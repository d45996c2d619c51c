#include "roomgroup.h"

#include "layoutqueries.h"

#include <QStringList>

namespace {

constexpr QChar betweenRooms = u'+';
constexpr QChar betweenGroups = u'/';

QStringList numberTexts(const QList<int>& rooms)
{
    QStringList texts;
    for (const int room : rooms) {
        texts.append(QString::number(room));
    }
    return texts;
}

QString sortedAndJoined(QStringList texts, QChar separator)
{
    texts.sort();
    return texts.join(separator);
}

QList<int> roomsIn(QStringView text)
{
    QList<int> rooms;
    for (const QStringView room : text.split(betweenRooms)) {
        rooms.append(room.toInt());
    }
    return rooms;
}

} // namespace

QString RoomGroup::roomText() const
{
    return numberTexts(rooms).join(u',');
}

QString layoutText(const QList<QList<int>>& combinedRooms)
{
    QStringList groups;
    for (const QList<int>& rooms : combinedRooms) {
        groups.append(sortedAndJoined(numberTexts(rooms), betweenRooms));
    }
    return sortedAndJoined(std::move(groups), betweenGroups);
}

QList<QList<int>> combinedRoomsIn(QStringView layoutText)
{
    QList<QList<int>> combined;
    for (const QStringView text : layoutText.split(betweenGroups)) {
        combined.append(roomsIn(text));
    }
    return combined;
}

QList<RoomGroup> roomGroups(IDocAccessor& doc)
{
    QList<RoomGroup> groups;
    const int layouts = layoutCount(doc);
    for (int scene = 1; scene <= layouts; ++scene) {
        const std::optional<SceneInfo> layout = layoutAt(doc, scene);
        if (!layout) {
            continue;
        }
        for (const QList<int>& rooms : combinedRoomsIn(layout->roomGroup)) {
            groups.append({int(groups.size()) + 1, scene, rooms, layout->thumbnail});
        }
    }
    return groups;
}
