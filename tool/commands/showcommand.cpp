#include "showcommand.h"

#include "arguments.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "halltext.h"
#include "terminal.h"

QString ShowCommand::name() const
{
    return QStringLiteral("show");
}

QString ShowCommand::summary() const
{
    return QStringLiteral("Shows what a configuration file holds");
}

QString ShowCommand::details() const
{
    return QStringLiteral(
        "Draws the rooms and lists what stands in each, the layouts, and what each "
        "combined room has: its devices, the sides of its speakers, the name of "
        "its preset. Limits that are broken are marked with \"!!\" and told once "
        "more on standard error; the exit code is then 1.");
}

CommandSyntax ShowCommand::syntax() const
{
    return {{{QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
            {{{QStringLiteral("json")},
              QStringLiteral("shows it as JSON, which \"make\" takes back")}}};
}

ExitCode ShowCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QString path = arguments.operand(0);
    const HallReading reading = readHallFile(path);
    if (reading.hall == nullptr) {
        terminal.say(reading.fault);
        return ExitCode::CouldNotBeTried;
    }
    if (arguments.has(QStringLiteral("json"))) {
        terminal.write(writeHallJson(reading.hall->data()));
    } else {
        terminal.write(hallText(*reading.hall));
    }
    const QStringList broken = brokenLimits(*reading.hall);
    for (const QString& line : broken) {
        terminal.say(path + QStringLiteral(": ") + line);
    }
    return broken.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}
