#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The bytes of the file at `path`; nothing when it cannot be read or has more than `maxSize` of
/// them, and `fault` then says why.
std::optional<QByteArray> readWholeFile(const QString& path, qint64 maxSize, QString& fault);
