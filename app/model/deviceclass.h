#pragma once

#include <QStringView>

/// What a device is, by its model.
enum class DeviceClass
{
    Hub,
    Microphone,
    Speaker,
    Controller,
    Other
};

/// The class of a model: hubs and microphones by the beginning of the name (variants of a model
/// count with it), speakers and controllers by the exact name.
DeviceClass deviceClass(QStringView model);

/// True for every model whose name begins with the hub's.
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
