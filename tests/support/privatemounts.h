#pragma once

#include <QString>

/// Mounts that only this program sees and that end with it, so that a test can have a full disk or
/// one that may not be written. Root is not needed where user namespaces are allowed.

/// Gives the program a view of the mounts of its own. Call it first thing in main().
void makePrivateMounts();

/// Why there are none; empty when there are.
QString privateMountsRefusal();

/// Lays an empty disk of so many bytes, for so many files and folders (its own root counts), over
/// a folder.
bool mountDisk(const QString& folder, qint64 bytes, int files);

/// From now on nothing on the disk mounted there can be changed.
bool forbidWriting(const QString& folder);

/// Takes the disk away again, with what is on it; false when there is none.
bool unmount(const QString& folder);
