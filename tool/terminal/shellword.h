#pragma once

#include <QString>

/// A word of a command line as a shell takes it: in quotation marks when there is anything in it
/// that a shell would make something of, such as a blank.
QString shellWord(const QString& text);
