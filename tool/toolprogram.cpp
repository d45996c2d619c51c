#include "toolprogram.h"

#include "arguments.h"
#include "commandhelp.h"
#include "terminal.h"
#include "texttable.h"
#include "toolapplication.h"

namespace {

ExitCode refuse(Terminal& terminal, const QString& reason, const QString& help)
{
    terminal.say(QStringLiteral("%1; see %2 --help").arg(reason, help));
    return ExitCode::WrongUsage;
}

ExitCode runCommand(const Command& command, const QStringList& given, Terminal& terminal)
{
    const Arguments arguments(command.syntax(), given);
    if (arguments.wantsHelp()) {
        terminal.write(helpOf(command));
        return ExitCode::AllIsWell;
    }
    if (!arguments.fault().isEmpty()) {
        const QString called = QStringLiteral("tesselctl ") + command.name();
        return refuse(terminal, command.name() + QStringLiteral(": ") + arguments.fault(), called);
    }
    const auto application = makeToolApplication(command.needsPictures());
    return command.run(arguments, terminal);
}

ExitCode answer(const CommandTable& commands, const QStringList& arguments, Terminal& terminal)
{
    const QString tool = QStringLiteral("tesselctl");
    const QString first = arguments.value(1);
    if (first.isEmpty()) {
        return refuse(terminal, QStringLiteral("no command is given"), tool);
    }
    if (first == u"-h" || first == u"--help") {
        terminal.write(toolHelp(commands));
        return ExitCode::AllIsWell;
    }
    if (first == u"--version") {
        terminal.write(QStringLiteral("tesselctl " TESSEL_VERSION "\n"));
        return ExitCode::AllIsWell;
    }
    if (const Command* command = findCommand(commands, first)) {
        return runCommand(*command, arguments.mid(2), terminal);
    }
    const QString kind =
        first.startsWith(u'-') ? QStringLiteral("option") : QStringLiteral("command");
    return refuse(terminal, QStringLiteral("unknown %1 \"%2\"").arg(kind, first), tool);
}

} // namespace

QString toolHelp(const CommandTable& commands)
{
    TextTable table(2);
    for (const auto& command : commands) {
        table.addRow({QStringLiteral("  ") + command->name(), command->summary()});
    }
    TextTable options(2);
    options.addRow({QStringLiteral("  -h, --help"), QStringLiteral("shows this text, and behind a "
                                                                   "command what that takes")});
    options.addRow({QStringLiteral("  --version"), QStringLiteral("shows the version")});
    return QStringLiteral(
               "Usage: tesselctl COMMAND [ARGUMENT]...\n"
               "\n"
               "What stands beside the wizard: its configuration files and the devices of a\n"
               "hall, from a terminal.\n"
               "\n") +
           table.text() + u'\n' + options.text() +
           QStringLiteral(
               "\n"
               "Data goes to standard output, all talk to standard error. The exit code is 0\n"
               "when all is as it should be, 1 when something is not, 2 for wrong usage, and\n"
               "3 when a file or the network stood in the way.\n");
}

ExitCode runTool(const CommandTable& commands, const QStringList& arguments, Terminal& terminal)
{
    const ExitCode code = answer(commands, arguments, terminal);
    if (terminal.flush()) {
        return code;
    }
    terminal.say(QStringLiteral("standard output: it could not be written to"));
    return ExitCode::CouldNotBeTried;
}
