#pragma once

#include <QStringList>

class HallDocument;

/// The limits of one system that rooms and combined rooms break, a line for each.
QStringList brokenLimits(HallDocument& hall);

/// All that is wrong with a hall that can be read all the same: rooms, devices and layouts that
/// contradict each other, and broken limits. A line for each, place before reason.
QStringList hallFaults(HallDocument& hall);

/// The one of these lines that says that the device at this address has no MAC address.
QString missingMacFault(const QString& address);
