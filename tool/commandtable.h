#pragma once

#include "command.h"

#include <QStringView>

#include <memory>
#include <vector>

/// All commands, in the order in which they are told of.
using CommandTable = std::vector<std::unique_ptr<Command>>;

CommandTable allCommands();

/// The command of this name; null when there is none.
const Command* findCommand(const CommandTable& commands, QStringView name);
