#pragma once

#include "benchdocument.h"

#include <QStringList>

/// The preset files in the plainest way: plain lists are searched for what belongs to the hub, and
/// a bare XML writer writes it. The bytes are those of the wizard.
namespace BareFiles {

/// A hub's file in a layout; the hub must be in a set of it.
QString hubFile(const HallRecords& hall, const QString& hub, int layout);

/// The addresses of the devices placed with the hub in a layout.
QStringList peripherals(const HallRecords& hall, const QString& hub, int layout);

QString peripheralFile(const DeviceData& device);

} // namespace BareFiles
