#pragma once

#include <QString>

class Command;

/// The usage of a command in one line, without the word "Usage".
QString usageOf(const Command& command);

/// What `tesselctl COMMAND --help` says.
QString helpOf(const Command& command);
