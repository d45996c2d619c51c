#pragma once

#include "records.h"

#include <QSize>

#include <variant>

/// What is saved of a device: enough to know it again, and what the installer gave it.
struct SavedDevice
{
    QString label;
    QString ipAddress;
    QString macAddress;
    QString modelName;
    int roomNumber = 0; ///< 1 to 4; 0 = in no room
    bool labelModified = false;
};

/// One child of the root. The last one is the window size, invalid while it was never set.
using SavedSection = std::variant<QList<SavedDevice>, QList<RoomInfo>, QList<SceneInfo>,
                                  QList<DeviceSetInfo>, QList<PresetInfo>, QSize>;

/// A saved configuration but for the layouts' pictures.
struct SavedWork
{
    int pageIndex = 0;              ///< of WizardPage
    QList<SavedSection> sections;   ///< in file order
    bool hasForeignElement = false; ///< an unknown child of the root ended the reading there
};
