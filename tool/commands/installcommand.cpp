#include "installcommand.h"

#include "installjob.h"
#include "networkoptions.h"

QString InstallCommand::name() const
{
    return QStringLiteral("install");
}

QString InstallCommand::summary() const
{
    return QStringLiteral("Installs the presets on all hubs of a hall");
}

QString InstallCommand::details() const
{
    return QStringLiteral(
        "Looks for the devices of the file first, as the wizard does, and sends nothing when one "
        "that stands in a room is missing. Then it logs in to all hubs that stand in rooms, and "
        "once that is done for each of them, it stores the presets on all of them at once.\n"
        "Passwords are asked for at the terminal, a hub's first one twice, or are in a file that "
        "only its owner may open: a line for each hub, with its address, a blank and its password. "
        "Empty lines and lines that begin with \"#\" are passed over.\n"
        "Ctrl+C breaks off what is under way and names the hubs that are not finished.");
}

CommandSyntax InstallCommand::syntax() const
{
    return {{{QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
            {{{QStringLiteral("hub")},
              QStringLiteral("this hub alone; may be given more than once"),
              QStringLiteral("ADDRESS"),
              true},
             {{QStringLiteral("passwords")},
              QStringLiteral("takes passwords from this file"),
              QStringLiteral("FILE")},
             {{QStringLiteral("log")},
              QStringLiteral("writes requests and replies behind what this file holds, without "
                             "passwords"),
              QStringLiteral("FILE")},
             {{QStringLiteral("no-search")}, QStringLiteral("does not look for the devices first")},
             interfaceOption(),
             secondsOption(QStringLiteral("wait"),
                           QStringLiteral("how long the search waits for answers (5)")),
             {{QStringLiteral("json")}, QStringLiteral("writes JSON instead of a table")}}};
}

ExitCode InstallCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    return InstallJob(this, &arguments, &terminal).run();
}
