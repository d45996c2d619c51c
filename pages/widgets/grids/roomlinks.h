#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <utility>

/// Two rooms, the lower number first.
using RoomPair = std::pair<int, int>;

RoomPair roomPair(int one, int other);

/// Which rooms of one layout are linked, whether they touch or not, and what follows from it:
/// rooms joined directly or through others form one combined room, a group.
class RoomLinks
{
public:
    void set(RoomPair pair, bool linked) { m_links.insert(pair, linked); }
    bool isLinked(RoomPair pair) const { return m_links.value(pair, false); }
    void clear() { m_links.clear(); }

    /// The groups of two rooms and more. Lists that were merged into others are left empty.
    QList<QList<int>> groups() const;

    /// The text that names a layout of the rooms 1 to `roomCount` and that two equal layouts
    /// share: the rooms of each group sorted and joined with "+", the groups sorted and joined
    /// with "/", each room once ("1+2/3/4"). Empty without rooms.
    QString groupText(int roomCount) const;

private:
    QMap<RoomPair, bool> m_links;
};
