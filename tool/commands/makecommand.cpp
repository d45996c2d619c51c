#include "makecommand.h"

#include "arguments.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "inputfile.h"
#include "outputfile.h"
#include "terminal.h"

namespace {

constexpr qsizetype maxFaultsTold = 50;

QString output()
{
    return QStringLiteral("o");
}

QString force()
{
    return QStringLiteral("force");
}

/// What cannot be understood, and then what makes no sense.
QStringList faultsOf(const HallJsonReading& reading)
{
    HallDocument* const understood = reading.hall ? reading.hall.get() : reading.remains.get();
    return understood != nullptr ? reading.faults + hallFaults(*understood) : reading.faults;
}

void tell(const QString& path, const QStringList& faults, Terminal& terminal)
{
    for (const QString& fault : faults.first(std::min(faults.size(), maxFaultsTold))) {
        terminal.say(path + QStringLiteral(": ") + fault);
    }
    if (faults.size() > maxFaultsTold) {
        terminal.say(
            QStringLiteral("%1: and %2 faults more").arg(path).arg(faults.size() - maxFaultsTold));
    }
}

/// Why the hall must not be written there.
QString faultOfOutput(const QString& path, const QString& input)
{
    return path.endsWith(u".tessel", Qt::CaseInsensitive)
               ? outputFault(path, {input})
               : path + QStringLiteral(": its name does not end in .tessel, and the wizard could "
                                       "not open it");
}

} // namespace

QString MakeCommand::name() const
{
    return QStringLiteral("make");
}

QString MakeCommand::summary() const
{
    return QStringLiteral("Makes a configuration file out of its JSON");
}

QString MakeCommand::details() const
{
    return QStringLiteral(
        "The JSON is what \"show --json\" writes; what it lacks gets the wizard's "
        "defaults, and the layouts' pictures are made. Everything is judged first: "
        "each fault is told in a line with its place and its reason, and with one "
        "of them nothing is written.");
}

CommandSyntax MakeCommand::syntax() const
{
    return {{{QStringLiteral("FILE.json"), QStringLiteral("the hall as JSON")}},
            {{{output()},
              QStringLiteral("the configuration file to write"),
              QStringLiteral("FILE.tessel"),
              false,
              true},
             {{force()},
              QStringLiteral("writes it although the hall is faulty, as far as it can be "
                             "understood")}}};
}

ExitCode MakeCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QString path = arguments.operand(0);
    const QString misled = faultOfOutput(arguments.value(output()), path);
    if (!misled.isEmpty()) {
        terminal.say(misled);
        return ExitCode::WrongUsage;
    }
    QByteArray text;
    const QString unreadable = readInputFile(path, text);
    if (!unreadable.isEmpty()) {
        tell(path, {unreadable}, terminal);
        return ExitCode::CouldNotBeTried;
    }
    const HallJsonReading reading = readHallJson(text);
    const QStringList faults = faultsOf(reading);
    tell(path, faults, terminal);
    if (reading.hall == nullptr || (!faults.isEmpty() && !arguments.has(force()))) {
        return ExitCode::CouldNotBeTried;
    }
    const QString unwritten = writeHallFile(arguments.value(output()), reading.hall->data());
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    return faults.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}
