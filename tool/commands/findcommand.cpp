#include "findcommand.h"

#include "arguments.h"
#include "findreport.h"
#include "networkoptions.h"
#include "terminal.h"

#include <QEventLoop>
#include <QHostAddress>

#include <algorithm>

namespace {

constexpr int usualWaitMs = 5000;

bool isAddress(const QString& text)
{
    const QHostAddress address(text);
    return address.protocol() == QAbstractSocket::IPv4Protocol && address.toString() == text;
}

/// Searches; nothing when that cannot be, which is said.
std::optional<FindResult> searched(const InterfaceChoice& side, int waitMs,
                                   const QStringList& probes, Terminal& terminal)
{
    HallSearch search(side.row->index, waitMs, probes);
    QEventLoop untilFinished;
    QObject::connect(&search, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    if (!search.start()) {
        terminal.say(QStringLiteral("UDP port %1 of %2 is in use: is the wizard or another search "
                                    "open on this computer?")
                         .arg(QString::number(DeviceDetector::port), side.row->address));
        return std::nullopt;
    }
    if (terminal.isWatched()) {
        terminal.say(QStringLiteral("searching on %1 (%2)").arg(side.row->name, side.row->address));
    }
    const QDateTime begun = QDateTime::currentDateTime();
    untilFinished.exec();
    return FindResult{begun, side, search.devices(), search.probes()};
}

void write(const FindResult& result, bool isForPrograms, Terminal& terminal)
{
    if (isForPrograms) {
        terminal.write(findObject(result));
    } else {
        terminal.write(findTables(result));
    }
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
    const auto wrong = std::find_if_not(probes.begin(), probes.end(), isAddress);
    if (wrong != probes.end()) {
        terminal.say(QStringLiteral("find: --probe is no IPv4 address: %1").arg(*wrong));
        return ExitCode::WrongUsage;
    }
    const std::optional<int> waitMs =
        millisecondsOf(arguments, QStringLiteral("wait"), usualWaitMs, *this, terminal);
    if (!waitMs) {
        return ExitCode::WrongUsage;
    }
    const InterfaceChoice side =
        chooseInterface(systemInterfaces(), arguments.value(QStringLiteral("interface")));
    if (!side.row) {
        terminal.say(side.fault);
        return ExitCode::CouldNotBeTried;
    }
    const std::optional<FindResult> result = searched(side, *waitMs, probes, terminal);
    if (!result) {
        return ExitCode::CouldNotBeTried;
    }
    write(*result, arguments.has(QStringLiteral("json")), terminal);
    const QStringList faults = findFaults(*result);
    for (const QString& fault : faults) {
        terminal.say(fault);
    }
    return faults.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}
