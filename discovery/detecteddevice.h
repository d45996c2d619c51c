#pragma once

#include <QString>

class DeviceInfoReceiver;

/// What discovery knows of one device; one record per address found. The texts from the device id
/// to the current preset are empty until the device has told its identity.
struct DetectedDevice
{
    QString nameText;
    QString modelName;
    QString macAddress; // six two-digit groups joined by colons, upper case
    QString ipAddress;
    QString deviceId;
    QString deviceName; // the label that the installer gave the device
    QString version;
    QString serialNumber;
    QString currentPreset;
    QString searchType; // how it was found
    QString password;   // discovery never fills it

    /// The query that asks for the identity, owned by the detector; null in an empty record.
    DeviceInfoReceiver* receiver = nullptr;
};
