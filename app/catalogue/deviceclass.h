#pragma once

#include "devicecatalogue.h"

/// The class of a model in the catalogue; Other for a model that is not known.
DeviceClass deviceClass(QStringView model);

/// True for every model that counts as a hub.
bool isHub(QStringView model);

/// Counts of one room or one device set, and the limits that a conference system sets them.
struct DeviceCounts
{
    int hubs = 0;
    int microphones = 0;
    int speakers = 0;
    int controllers = 0;

    static constexpr int maxHubs = 1;
    static constexpr int maxMicrophones = 16;
    static constexpr int maxSpeakers = 15;
    static constexpr int maxMicrophonesAndSpeakers = 16;
    static constexpr int maxControllers = 8;

    /// Counts one more device; models outside the classes are not counted.
    void add(QStringView model);

    /// True while nothing has been counted.
    bool isEmpty() const;
};
