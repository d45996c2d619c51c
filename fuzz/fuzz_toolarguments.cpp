// Arguments of the program without windows, one per line of the input, for each of its commands.
//
// - Arguments are told as wrong in one line, or every operand is there and not empty, no option
//   that may be given once was given twice, and none has an empty value.
// - Help that is asked for is given, whatever else there is.
#include "arguments.h"
#include "commandtable.h"
#include "fuzztarget.h"

namespace {

void examineOption(const Arguments& arguments, const CommandOption& option)
{
    const QString& name = option.names.first();
    const QStringList values = arguments.values(name);
    require(arguments.has(name) == !values.isEmpty(), "an option that was given is there");
    require(option.isRepeatable || values.size() <= 1, "an option is given once");
    require(option.valueName.isEmpty() || !values.contains(QString()), "a value is not empty");
}

void examineCommand(const Command& command, const QStringList& given)
{
    const CommandSyntax syntax = command.syntax();
    const Arguments arguments(syntax, given);
    require(!arguments.wantsHelp() || arguments.fault().isEmpty(), "help comes before faults");
    if (arguments.wantsHelp() || !arguments.fault().isEmpty()) {
        return;
    }
    for (qsizetype index = 0; index < syntax.operands.size(); ++index) {
        require(!arguments.operand(index).isEmpty(), "every operand is there");
    }
    require(arguments.operand(syntax.operands.size()).isEmpty(), "there is no operand too many");
    for (const CommandOption& option : syntax.options) {
        examineOption(arguments, option);
    }
}

} // namespace

void examine(const QByteArray& input)
{
    static const CommandTable commands = allCommands();
    for (const auto& command : commands) {
        examineCommand(*command, QString::fromUtf8(input).split(u'\n'));
    }
}
