#pragma once

#include "deviceclass.h"
#include "devicelimits.h"
#include "roomgroup.h"

#include <QList>
#include <QString>

#include <optional>

class HallDocument;
struct DeviceData;

/// A room or a number of combined rooms counts its devices against what one system serves.
struct DeviceTally
{
    DeviceCounts counts;
    QList<LimitBreach> breaches;
};

/// A drawn room and what stands in it.
struct RoomView
{
    int number = 0;
    QList<const DeviceData*> devices; ///< in the hall's order
    DeviceTally tally;
};

/// A device in a combined room.
struct MemberView
{
    const DeviceData* device = nullptr; ///< null when the hall has none of this address
    QString address;
    bool isRemoved = false;
    QString side; ///< "L" or "R"
};

/// The rooms that one layout makes into one, and what is used there.
struct CombinedRoomView
{
    RoomGroup group;
    std::optional<QString> presetName; ///< nothing when none is stored
    QList<MemberView> members;         ///< as stored, removed ones too
    DeviceTally tally;                 ///< of those that are not removed
};

/// The drawn rooms in the order of their numbers. What they point to belongs to the hall.
QList<RoomView> roomViews(const HallDocument& hall);

/// All combined rooms of all layouts, in the wizard's order. Likewise.
QList<CombinedRoomView> combinedRoomViews(HallDocument& hall);
