#pragma once

#include <QStringList>

class QSaveFile;

/// Why a command must not write its output to `path`: it is one of the files that it reads, under
/// whatever name, or something that is no file, such as a device, which would be replaced by one.
/// One line that names the path; empty when it may be written, and for an empty path.
QString outputFault(const QString& path, const QStringList& inputs);

/// Writes all of `bytes` into a file that was opened, and puts it into its place once all of them
/// are on the disk. One line that names the path and the reason, and then what was there is left
/// whole; empty when it is done.
QString writeWhole(QSaveFile& file, const QByteArray& bytes);

/// Opens the file at `path` and does the same.
QString writeWholeFile(const QString& path, const QByteArray& bytes);

/// The line for a file that could not be opened or written.
QString writeFault(const QSaveFile& file);
