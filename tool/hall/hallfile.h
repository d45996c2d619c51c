#pragma once

#include "halldocument.h"

#include <QString>

#include <memory>

/// A configuration as a file ("hall.tessel"): the wizard's saved work under a name of its own.
/// Pictures are read and written, so there has to be an application that can hold some.

/// What came of reading a hall. Either there is a hall, or a fault: one line that names the file,
/// the place in it, and the reason.
struct HallReading
{
    std::unique_ptr<HallDocument> hall;
    QString fault;
};

/// Reads the hall at `path` with all devices that it names, whether or not anyone has met them: no
/// firmware is asked for and nothing is looked for.
HallReading readHallFile(const QString& path);

/// The bytes of such a file; the same hall gives the same bytes.
QByteArray packHall(const DocumentData& hall);

/// Writes them beside `path` and puts them into its place once all of them are on the disk. A
/// fault as in HallReading, and then what was there is left whole; empty when it is done.
QString writeHallFile(const QString& path, const DocumentData& hall);
