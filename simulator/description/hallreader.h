#pragma once

#include "halldescription.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// A hall that was read, or in plain words why none could be.
struct HallReading
{
    std::optional<HallDescription> hall = {};
    QString error = {};
};

/// Reads a hall from the JSON text of a description file. Whatever the text leaves out is filled
/// in as HallDescription::byCounts() does; `docs/hall.md` lists the entries.
HallReading readHall(const QByteArray& json);

/// The same from a file.
HallReading readHallFile(const QString& path);
