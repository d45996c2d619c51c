#include "makecommand.h"

#include "arguments.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "halloutput.h"
#include "networkmacs.h"
#include "networkoptions.h"
#include "networksearch.h"
#include "terminal.h"
#include "wholefile.h"

namespace {

constexpr qint64 maxTextSize = qint64(16) * 1024 * 1024;
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

/// Reads the file at `path` into `text`; the reason why it cannot be read, if there is one.
QString readText(const QString& path, QByteArray& text)
{
    QString fault;
    text = readWholeFile(path, maxTextSize, fault).value_or(QByteArray());
    return fault.isEmpty() && text.isEmpty() ? QStringLiteral("the file is empty") : fault;
}

/// Fills in from the network what the hall lacks; the reason why it cannot be asked, if there is
/// one. What devices contradict goes into `faults`.
QString completed(HallDocument& hall, const QString& interface, int waitMs, QStringList& faults,
                  Terminal& terminal)
{
    const SearchResult search =
        searchNetwork(interface, waitMs, addressesWithoutMac(hall.data()), terminal);
    faults = takeMacs(hall.data(), search.devices);
    return search.fault;
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

/// Asks the network when that is wanted, judges the hall and writes it.
ExitCode made(const HallJsonReading& reading, const Arguments& arguments, int waitMs,
              Terminal& terminal)
{
    QStringList faults;
    if (reading.hall != nullptr && arguments.has(interfaceName())) {
        const QString unasked =
            completed(*reading.hall, arguments.value(interfaceName()), waitMs, faults, terminal);
        if (!unasked.isEmpty()) {
            terminal.say(unasked);
            return ExitCode::CouldNotBeTried;
        }
    }
    faults += faultsOf(reading);
    tell(arguments.operand(0), faults, terminal);
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
        "filled in by address, and a device that is another one than the JSON says is a fault.");
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
    const QString unreadable = readText(path, text);
    if (!unreadable.isEmpty()) {
        tell(path, {unreadable}, terminal);
        return ExitCode::CouldNotBeTried;
    }
    return made(readHallJson(text), arguments, *waitMs, terminal);
}
