#pragma once

#include <QString>
#include <QTemporaryDir>

/// A configuration file with three rooms and three layouts. In the first two rooms stand the hubs
/// "Stage" and "Gallery", in the second one a microphone too.
class HallOnDisk
{
public:
    HallOnDisk(const QString& stage, const QString& gallery);

    /// Where it is; empty when it could not be written.
    QString path() const { return m_path; }

    /// A path beside it.
    QString beside(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QString m_path;
};
