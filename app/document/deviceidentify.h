#pragma once

class QObject;
struct DeviceData;

/// Makes a device show itself: over the hub's web API when it was found that way, else by text
/// command. What speaks to the device is made on first use as a child of `owner` and kept in the
/// record, so that a second call uses the same connection.
void startIdentify(DeviceData& device, QObject* owner);

/// Deletes what startIdentify() made for this record. Copies of the record hold the same two
/// pointers, so call it for one of them only.
void deleteIdentifiers(const DeviceData& device);
