#include "commandtable.h"

#include "findcommand.h"
#include "installcommand.h"
#include "makecommand.h"
#include "plancommand.h"
#include "recallcommand.h"
#include "replacecommand.h"
#include "reportcommand.h"
#include "showcommand.h"
#include "walkcommand.h"

#include <algorithm>

CommandTable allCommands()
{
    CommandTable commands;
    commands.push_back(std::make_unique<FindCommand>());
    commands.push_back(std::make_unique<InstallCommand>());
    commands.push_back(std::make_unique<RecallCommand>());
    commands.push_back(std::make_unique<ShowCommand>());
    commands.push_back(std::make_unique<MakeCommand>());
    commands.push_back(std::make_unique<PlanCommand>());
    commands.push_back(std::make_unique<ReplaceCommand>());
    commands.push_back(std::make_unique<WalkCommand>());
    commands.push_back(std::make_unique<ReportCommand>());
    return commands;
}

const Command* findCommand(const CommandTable& commands, QStringView name)
{
    const auto found = std::find_if(commands.begin(), commands.end(), [name](const auto& command) {
        return command->name() == name;
    });
    return found != commands.end() ? found->get() : nullptr;
}
