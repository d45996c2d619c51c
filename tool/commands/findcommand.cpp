#include "findcommand.h"

#include "arguments.h"
#include "findreport.h"
#include "networkoptions.h"
#include "probeaddress.h"
#include "terminal.h"

namespace {

void write(const SearchResult& result, bool isForPrograms, Terminal& terminal)
{
    if (isForPrograms) {
        terminal.write(findObject(result));
    } else {
        terminal.write(findTables(result));
    }
}

/// The first that cannot be asked, and why.
QString faultOfProbes(const QStringList& probes)
{
    const QList<NicInfo> interfaces = systemInterfaces();
    for (const QString& address : probes) {
        const QString fault = probeFault(address, interfaces);
        if (!fault.isEmpty()) {
            return QStringLiteral("%1: %2").arg(fault, address);
        }
    }
    return {};
}

/// What this computer lacks comes first: all the rest may follow from it. Nothing that stands in a
/// table is said once more.
ExitCode report(const SearchResult& result, bool isForPrograms, Terminal& terminal)
{
    const QStringList sideFaults = rivalWords(result.side);
    terminal.say(sideFaults);
    write(result, isForPrograms, terminal);
    const QString silence = silenceFault(result);
    if (!silence.isEmpty()) {
        terminal.say(silence);
    }
    const QStringList faults = findFaults(result);
    if (isForPrograms) {
        terminal.say(faults);
    }
    return sideFaults.isEmpty() && silence.isEmpty() && faults.isEmpty() ? ExitCode::AllIsWell
                                                                         : ExitCode::SomethingIsNot;
}

} // namespace

QString FindCommand::name() const
{
    return QStringLiteral("find");
}

QString FindCommand::summary() const
{
    return QStringLiteral("Lists the devices that answer, with the wizard's verdict");
}

QString FindCommand::details() const
{
    return QStringLiteral(
        "It asks as the wizard does and judges by the wizard's rule, but also lists what the "
        "wizard does not show: devices whose firmware is too old or whose model is unknown, the "
        "second port of a hub, and devices that answer without telling their identity.\n"
        "An address that does not answer can be asked by name with --probe: by a query of its own, "
        "and by text commands. What answers text commands only tells neither model nor MAC address "
        "and is not judged.");
}

CommandSyntax FindCommand::syntax() const
{
    return {{},
            {{{QStringLiteral("probe")},
              QStringLiteral("also asks this address by name"),
              QStringLiteral("ADDRESS"),
              true},
             interfaceOption(),
             secondsOption(QStringLiteral("wait"),
                           QStringLiteral("how long to wait for answers (5), and again for those "
                                          "to --probe")),
             {{QStringLiteral("json")}, QStringLiteral("writes JSON instead of tables")}}};
}

ExitCode FindCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QStringList probes = arguments.values(QStringLiteral("probe"));
    const QString misled = faultOfProbes(probes);
    if (!misled.isEmpty()) {
        terminal.say(QStringLiteral("find: --probe ") + misled);
        return ExitCode::WrongUsage;
    }
    const std::optional<int> waitMs =
        millisecondsOf(arguments, QStringLiteral("wait"), usualSearchMs, *this, terminal);
    if (!waitMs) {
        return ExitCode::WrongUsage;
    }
    const SearchResult result =
        searchNetwork(arguments.value(QStringLiteral("interface")), *waitMs, probes, terminal);
    if (!result.fault.isEmpty()) {
        terminal.say(result.fault);
        return ExitCode::CouldNotBeTried;
    }
    return report(result, arguments.has(QStringLiteral("json")), terminal);
}
