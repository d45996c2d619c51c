#pragma once

#include <QByteArray>
#include <QString>

/// Reads a text that a command is handed, such as JSON, into `text`. Why it cannot be had, in a few
/// words without its path: it is no file, it is empty, or it is larger than what is meant to be
/// read (16 MiB); empty when it was read.
QString readInputFile(const QString& path, QByteArray& text);
