#include "roomgroup.h"

#include "layoutqueries.h"

QList<int> RoomGroup::roomNumbers() const
{
    QList<int> numbers;
    for (const QStringView part : QStringView(roomText).split(u',')) {
        numbers.append(part.toInt());
    }
    return numbers;
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
        for (QString rooms : layout->roomGroup.split(u'/')) {
            rooms.replace(u'+', u',');
            groups.append({int(groups.size()) + 1, scene, rooms, layout->thumbnail});
        }
    }
    return groups;
}
