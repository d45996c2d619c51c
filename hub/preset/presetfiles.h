#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

struct DeviceData;
struct DeviceSetInfo;

/// Builds the XML files that a preset is installed as: one for the hub, naming the peripherals
/// that belong to it in a layout, and one for each of those peripherals. Pure functions over the
/// document's records: the same records give the same bytes.

/// Finds the record of the first device with exactly this address; null when there is none.
using DeviceLookup = std::function<const DeviceData*(const QString& ipAddress)>;

/// A hub's file for one layout.
struct BuiltHubFile
{
    int deviceSetNumber = 0; ///< the set that the hub belongs to in that layout
    QByteArray content;      ///< UTF-8
};

/// A peripheral's file, the same in every layout.
struct BuiltPeripheralFile
{
    QString macAddress; ///< as recorded, with colons
    QByteArray content; ///< UTF-8
};

/// The file of the hub at `hubAddress` for layout `scene`. It has room for 24 peripherals; those
/// beyond are left out, as are removed ones. Nothing when the hub is in no set of that layout.
std::optional<BuiltHubFile> buildHubFile(const QList<DeviceSetInfo>& sets,
                                         const DeviceLookup& deviceAt, const QString& hubAddress,
                                         int scene);

/// The addresses of the devices that get a file through the hub at `hubAddress` in layout `scene`,
/// in record order: its set's other members, further hubs excepted. Empty when the hub itself is
/// removed from its set; nothing when it is in no set of that layout.
std::optional<QStringList> listPeripherals(const QList<DeviceSetInfo>& sets,
                                           const DeviceLookup& deviceAt, const QString& hubAddress,
                                           int scene);

/// The file of the device at `ipAddress`; nothing for an unknown address.
std::optional<BuiltPeripheralFile> buildPeripheralFile(const DeviceLookup& deviceAt,
                                                       const QString& ipAddress);
