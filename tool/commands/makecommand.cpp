#include "makecommand.h"

#include "arguments.h"
#include "draftcompletion.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "halloutput.h"
#include "inputfile.h"
#include "networkoptions.h"
#include "networksearch.h"
#include "outputfile.h"
#include "terminal.h"

namespace {

constexpr qsizetype maxFaultsTold = 50;

QString output()
{
    return QStringLiteral("o");
}

QString interfaceName()
{
    return QStringLiteral("interface");
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

/// Without what was told of a device in other words.
QStringList withoutNamed(QStringList faults, const QStringList& addresses)
{
    for (const QString& address : addresses) {
        faults.removeAll(missingMacFault(address));
    }
    return faults;
}

/// Judges the hall, with what the network says of it, and writes it.
ExitCode written(const HallJsonReading& reading, const DraftCompletion& completion,
                 const Arguments& arguments, Terminal& terminal)
{
    const QStringList faults =
        completion.faults + withoutNamed(faultsOf(reading), completion.named);
    tell(arguments.operand(0), faults + completion.notes, terminal);
    if (reading.hall == nullptr || (!faults.isEmpty() && !arguments.has(force()))) {
        return ExitCode::CouldNotBeTried;
    }
    const QString unwritten = writeHallFile(arguments.value(output()), reading.hall->data());
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    return faults.isEmpty() && completion.notes.isEmpty() ? ExitCode::AllIsWell
                                                          : ExitCode::SomethingIsNot;
}

/// Asks the network first when that is wanted.
ExitCode made(const HallJsonReading& reading, const Arguments& arguments, int waitMs,
              Terminal& terminal)
{
    if (reading.hall == nullptr || !arguments.has(interfaceName())) {
        return written(reading, {}, arguments, terminal);
    }
    DocumentData& hall = reading.hall->data();
    const SearchResult search =
        searchNetwork(arguments.value(interfaceName()), waitMs, addressesToAsk(hall), terminal);
    if (!search.fault.isEmpty()) {
        terminal.say(search.fault);
        return ExitCode::CouldNotBeTried;
    }
    return written(reading, completeDraft(hall, search), arguments, terminal);
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
        "of them nothing is written.\n"
        "With --interface the devices are searched for: MAC addresses that the JSON lacks are "
        "filled in by address, labels too, and a device that is another one than the JSON says is "
        "a fault. One that lacks nothing and does not answer is named.");
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
                             "understood")},
             {{interfaceName()},
              QStringLiteral("asks the devices on this network interface"),
              QStringLiteral("NAME")},
             secondsOption(QStringLiteral("wait"),
                           QStringLiteral("how long to wait for their answers (5), and again for "
                                          "those of devices that only answer when asked alone"))}};
}

ExitCode MakeCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QString path = arguments.operand(0);
    const std::optional<int> waitMs =
        millisecondsOf(arguments, QStringLiteral("wait"), usualSearchMs, *this, terminal);
    if (!waitMs) {
        return ExitCode::WrongUsage;
    }
    const QString misled = hallOutputFault(arguments.value(output()), path);
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
    return made(readHallJson(text), arguments, *waitMs, terminal);
}
