#pragma once

#include "command.h"
#include "nicrows.h"

#include <optional>

/// What commands that touch the network take besides their own options.

/// How long a search waits for answers unless it is told otherwise.
inline constexpr int usualSearchMs = 5000;

/// --interface NAME, for a search.
CommandOption interfaceOption();

/// An option whose value is a number of seconds, such as --wait SECONDS.
CommandOption secondsOption(const QString& name, const QString& description);

/// The value of such an option in milliseconds, `usualMs` when it was not given; nothing when it is
/// no number from 0 to an hour, which is said.
std::optional<int> millisecondsOf(const Arguments& arguments, const QString& name, int usualMs,
                                  const Command& command, Terminal& terminal);

/// --interface NAME, for who asks hubs whose addresses are known.
CommandOption hubInterfaceOption();

/// From where this computer asks hubs: the interface that was named, or all that it has. Nothing
/// when the one that was named cannot be used, which is said; so is that another one is in its
/// network.
std::optional<QList<NicRow>> hubSides(const Arguments& arguments, Terminal& terminal);

/// That no hub of a hall answered, and what this computer lacks for it, if anything.
QString silenceWords();
