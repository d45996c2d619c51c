#pragma once

#include <QList>
#include <QString>

struct SavedDevice;

/// What the user is told of saved devices that were not found, one line for each; more lines or
/// longer names than any hall has are cut.
QString missingDevicesText(const QList<SavedDevice>& devices);

/// Tells it and waits for "OK".
void warnOfMissingDevices(const QList<SavedDevice>& devices);
