#pragma once

#include "devicerecords.h"
#include "devicesetrecords.h"
#include "records.h"

#include <QSize>

/// Everything the wizard knows. The document holds one; the kind functions read and write it.
struct DocumentData
{
    int nicIndex = 0;             ///< chosen network interface, from 1; 0 = none chosen yet
    bool isNicHandedOver = false; ///< by the program's arguments: nobody searches on it
    int pageIndex = 0;            ///< WizardPage shown when the work was saved
    QSize windowSize;             ///< window size when the work was saved; invalid before
    DeviceRecords devices;        ///< in the order in which they were found
    QList<RoomInfo> rooms;        ///< no two of one number
    QList<SceneInfo> scenes;      ///< the room layouts, no two of one number
    DeviceSetRecords deviceSets;  ///< which device belongs to which combined room
    QList<PresetInfo> presets;    ///< at most one per combined room of a layout
};
