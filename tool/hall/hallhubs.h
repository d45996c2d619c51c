#pragma once

#include "documentdata.h"

#include <optional>

/// The hubs that a hall is installed in and its layouts are recalled on: those that stand in a
/// room, in the hall's order.
QList<DeviceData> placedHubs(const DocumentData& hall);

/// Their addresses, in the same order.
QStringList addressesOf(const QList<DeviceData>& hubs);

/// A hub for people: its label and its address, or its address alone when it has no other name.
QString hubName(const DeviceData& hub);

/// What was read back from a hub that was to be on a preset: "ok", or which one it is on instead,
/// or that it did not answer.
QString readBackWords(std::optional<int> preset, int expected);
