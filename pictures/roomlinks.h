#pragma once

#include <QList>
#include <QMap>

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

    /// The combined rooms that a layout of the rooms 1 to `roomCount` consists of, each room in
    /// one of them, alone where nothing links it. None of them is empty.
    QList<QList<int>> combinedRooms(int roomCount) const;

private:
    QMap<RoomPair, bool> m_links;
};
