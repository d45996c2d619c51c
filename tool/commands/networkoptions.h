#pragma once

#include "command.h"

#include <optional>

/// What commands that touch the network take besides their own options.

/// How long a search waits for answers unless it is told otherwise.
inline constexpr int usualSearchMs = 5000;

/// --interface NAME.
CommandOption interfaceOption();

/// An option whose value is a number of seconds, such as --wait SECONDS.
CommandOption secondsOption(const QString& name, const QString& description);

/// The value of such an option in milliseconds, `usualMs` when it was not given; nothing when it is
/// no number from 0 to an hour, which is said.
std::optional<int> millisecondsOf(const Arguments& arguments, const QString& name, int usualMs,
                                  const Command& command, Terminal& terminal);

/// That no hub of a hall answered, and what this computer lacks for it, if anything.
QString silenceWords();
