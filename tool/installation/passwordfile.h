#pragma once

#include <QHash>
#include <QString>

/// A file of passwords: in each line the address of a hub, a blank, and its password, which is all
/// the rest of the line and not empty. Empty lines and those that begin with "#" are passed over.

/// What came of reading one. A fault is one line that names the file, the place and the reason, and
/// nothing of what the file holds.
struct PasswordReading
{
    QHash<QString, QString> passwords; ///< by address
    QString fault;                     ///< empty when all was read
};

/// Reads it. A file that others than its owner may open is refused, where the system tells.
PasswordReading readPasswordFile(const QString& path);
