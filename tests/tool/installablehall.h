#pragma once

#include "halldescription.h"

#include <QTemporaryDir>

/// The configuration file of a simulated hall: its hubs one per room, the peripherals in room 1, in
/// layout 1 every room for itself, in layout 2 all rooms are one, with the first hub.
class InstallableHall
{
public:
    explicit InstallableHall(const HallDescription& description);

    /// Where it is; empty when it could not be written.
    QString path() const { return m_path; }

    /// A path beside it.
    QString beside(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// Writes a file beside it that only its owner may open, and returns its path.
    QString privateFile(const char* name, const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
    QString m_path;
};
