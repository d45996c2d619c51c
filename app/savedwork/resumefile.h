#pragma once

#include "records.h"

#include <QByteArray>

#include <optional>

/// What a resume file holds: the XML text, and behind it the layouts once more with the pictures
/// that XML cannot carry.
struct ResumeFile
{
    QString xml;
    QList<SceneInfo> scenes; ///< in file order
};

/// The bytes of a resume file, as a QDataStream of the default version has them: the text, the
/// number of layouts in 64 bits, and of each layout number, room group text and picture.
QByteArray packResumeFile(const ResumeFile& content);

/// Reads such bytes. Nothing when the text is cut or longer than the bytes. Behind it reading
/// stops at the first layout that is cut, damaged or has a picture too large for a thumbnail, and
/// keeps those before: damage there costs pictures, not the configuration. `length`, when given,
/// then says how many of the bytes were read.
std::optional<ResumeFile> unpackResumeFile(const QByteArray& bytes, qsizetype* length = nullptr);

/// Replaces the file at `path` when all bytes could be written and are no more than
/// readResumeFile() takes; otherwise false, and an earlier file is left whole.
bool writeResumeFile(const QString& path, const QByteArray& bytes);

/// The bytes of the file at `path`; nothing when it cannot be read or is larger than any
/// configuration (8 MiB). `fault`, when given, then says why.
std::optional<QByteArray> readResumeFile(const QString& path, QString* fault = nullptr);
