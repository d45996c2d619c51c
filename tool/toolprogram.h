#pragma once

#include "commandtable.h"

#include <QStringList>

class Terminal;

/// What `tesselctl --help` says.
QString toolHelp(const CommandTable& commands);

/// Does what the arguments ask for; the first one is the program's name. Help and version are
/// answered without an application.
ExitCode runTool(const CommandTable& commands, const QStringList& arguments, Terminal& terminal);
