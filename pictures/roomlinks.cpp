#include "roomlinks.h"

#include <algorithm>

namespace {

bool shareARoom(const QList<int>& one, const QList<int>& other)
{
    return std::any_of(one.begin(), one.end(), [&](int room) { return other.contains(room); });
}

void moveRooms(QList<int>& from, QList<int>& into)
{
    for (const int room : std::as_const(from)) {
        if (!into.contains(room)) {
            into.append(room);
        }
    }
    from.clear();
}

/// One pass over all pairs of groups; true if any two became one.
bool mergeOnce(QList<QList<int>>& groups)
{
    bool merged = false;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        for (qsizetype j = i + 1; j < groups.size(); ++j) {
            if (shareARoom(groups.at(i), groups.at(j))) {
                moveRooms(groups[j], groups[i]);
                merged = true;
            }
        }
    }
    return merged;
}

} // namespace

RoomPair roomPair(int one, int other)
{
    return {std::min(one, other), std::max(one, other)};
}

QList<QList<int>> RoomLinks::groups() const
{
    QList<QList<int>> groups;
    for (auto link = m_links.begin(); link != m_links.end(); ++link) {
        if (link.value()) {
            groups.append({link.key().first, link.key().second});
        }
    }
    while (mergeOnce(groups)) {
        // A merged group can share a room with one that was passed before.
    }
    return groups;
}

QList<QList<int>> RoomLinks::combinedRooms(int roomCount) const
{
    QList<QList<int>> combined = groups();
    combined.removeIf([](const QList<int>& group) { return group.isEmpty(); });
    const QList<QList<int>> linked = combined;
    for (int room = 1; room <= roomCount; ++room) {
        const bool alone =
            std::none_of(linked.begin(), linked.end(),
                         [room](const QList<int>& group) { return group.contains(room); });
        if (alone) {
            combined.append(QList<int>{room});
        }
    }
    return combined;
}
