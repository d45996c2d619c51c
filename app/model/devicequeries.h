#pragma once

#include <QList>
#include <QString>

#include <optional>

class IDocAccessor;

/// What pages may know of a device.
struct DeviceEntry
{
    QString label;
    QString modelName;
    QString version;
    QString ipAddress;
    QString macAddress;
    int roomNumber = 0; ///< 0 = in no room
};

/// What a finder of devices knows of one.
struct FoundDevice
{
    QString label;
    QString modelName;
    QString version;
    QString ipAddress;
    QString macAddress;
    QString searchType;
    QString password; ///< empty if none; then not handed on
};

/// The number of devices.
int deviceCount(IDocAccessor& doc);

/// The device at this position, from 0; nothing beyond the end.
std::optional<DeviceEntry> deviceAt(IDocAccessor& doc, int index);

/// The first device with exactly this address.
std::optional<DeviceEntry> deviceByAddress(IDocAccessor& doc, const QString& ipAddress);

/// The devices placed in `room`, in document order.
QList<DeviceEntry> devicesInRoom(IDocAccessor& doc, int room);

/// Adds a device; false when the document does not accept its model or firmware.
bool addDevice(IDocAccessor& doc, const FoundDevice& device);

/// Places a device; 0 takes it out of its room. False for an unknown address.
bool setDeviceRoom(IDocAccessor& doc, const QString& ipAddress, int room);

/// Renames a device; the document notes a changed label. False for an unknown address.
bool setDeviceLabel(IDocAccessor& doc, const QString& ipAddress, const QString& label);

/// Makes a device show itself. False for an unknown address.
bool identifyDevice(IDocAccessor& doc, const QString& ipAddress);
