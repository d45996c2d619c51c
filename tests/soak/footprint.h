#pragma once

#include <QString>

class QObject;

/// What a running program holds. Kinds that this system or build does not tell are -1.
struct Footprint
{
    qint64 heapKiB = -1;     ///< in use by the program
    qint64 residentKiB = -1; ///< kept in memory by the system, after the free part was given back
    qint64 files = -1;       ///< open file descriptors, sockets among them
    qint64 objects = 0;
    qint64 timers = 0;

    /// One line for a person.
    QString text() const;
};

/// Counts what this program holds now: the objects below `root` and those of all its widgets, and
/// the timers of these and of their children.
Footprint measureFootprint(const QObject& root);
