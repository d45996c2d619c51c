#pragma once

#include <QStringList>

/// Why a command must not write its output to `path`: it is one of the files that it reads, under
/// whatever name, or something that is no file, such as a device, which would be replaced by one.
/// One line that names the path; empty when it may be written, and for an empty path.
QString outputFault(const QString& path, const QStringList& inputs);
