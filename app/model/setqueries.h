#pragma once

#include "records.h"

#include <QSet>
#include <QStringList>

#include <optional>

class IDocAccessor;

/// Typed queries over the device sets: which devices belong to which combined room.

/// The record of one device in one set of one layout; nothing when there is none.
std::optional<DeviceSetInfo> deviceSetRecord(IDocAccessor& doc, int deviceSet, int scene,
                                             const QString& ipAddress);

/// Which of these addresses are those of devices taken out of one set of one layout.
QSet<QString> removedDevices(IDocAccessor& doc, int deviceSet, int scene,
                             const QStringList& addresses);

/// Appends a device to a set with its "removed" mark; its speaker position starts as "L".
/// False when the device is in that set already.
bool addToDeviceSet(IDocAccessor& doc, int deviceSet, int scene, const QString& ipAddress,
                    bool remove);

/// Stores where a speaker stands in one set: "L" or "R". False when it is not in that set.
bool setSpeakerPosition(IDocAccessor& doc, int deviceSet, int scene, const QString& ipAddress,
                        const QString& position);

/// Empties all device sets.
void clearDeviceSets(IDocAccessor& doc);
