#pragma once

#include "documentdata.h"
#include "halldocument.h"

#include <QHash>
#include <QSet>

// What a hall's other records follow from, and how.

/// What was chosen for one combined room.
struct CombinedRoomChoice
{
    QString presetName;
    QSet<QString> removed; ///< addresses of devices that are not used
    QSet<QString> right;   ///< addresses of speakers on the right-hand side
};

/// The choices by the number of the device set, from 1 over all layouts. A set without a choice has
/// an empty one.
using HallChoices = QHash<int, CombinedRoomChoice>;

/// The layouts of these texts, numbered from 1, with the pictures that the wizard makes of them.
QList<SceneInfo> layoutsOf(const QStringList& layoutTexts, const QList<RoomInfo>& rooms);

/// The device sets as the wizard stores them: of each combined room all devices of its rooms.
DeviceSetRecords deviceSetsOf(HallDocument& hall, const HallChoices& choices);

/// The presets likewise: one for each combined room.
QList<PresetInfo> presetsOf(HallDocument& hall, const HallChoices& choices);
