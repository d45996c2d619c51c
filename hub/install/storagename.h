#pragma once

#include <QString>

#include <optional>

/// The name under which a hub stores its own preset files, read from the header of its export:
/// the file name in quotes of the last "Content-Disposition:" line, up to the first dot.
///
/// Nothing when the header names no file (the export is not ready yet): no such line, no quoted
/// file name in it, an empty one or one that begins with a dot.
std::optional<QString> storageName(const QString& header);
