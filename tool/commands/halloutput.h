#pragma once

#include <QString>

/// Why a configuration file that is made out of `input` must not be written to `path`: the wizard
/// could not open it there, or outputFault() refuses it. One line that names the path, else empty.
QString hallOutputFault(const QString& path, const QString& input);
