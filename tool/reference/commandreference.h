#pragma once

#include "commandtable.h"

/// The commands for a shell that completes them: a line for each, with its name, its operands by
/// their names and its options, `--name` for a switch and `--name=VALUE` for one with a value.
QString completionTable(const CommandTable& commands);

/// The commands as a section of a manual page, in the mdoc language.
QString manualSection(const CommandTable& commands);

/// A text with `completionTable` in place of a line that reads `<COMPLETION>` and `manualSection`
/// in place of one that reads `<COMMANDS>`.
QString filledIn(const QString& text, const CommandTable& commands);
