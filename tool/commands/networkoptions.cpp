#include "networkoptions.h"

#include "arguments.h"
#include "foreignaddress.h"
#include "interfacechoice.h"
#include "terminal.h"

namespace {

constexpr double maxSeconds = 3600;
constexpr int millisecondsPerSecond = 1000;

} // namespace

CommandOption interfaceOption()
{
    return {{QStringLiteral("interface")},
            QStringLiteral("the network interface to search on; with one wired interface it need "
                           "not be named"),
            QStringLiteral("NAME")};
}

CommandOption secondsOption(const QString& name, const QString& description)
{
    return {{name}, description, QStringLiteral("SECONDS")};
}

std::optional<int> millisecondsOf(const Arguments& arguments, const QString& name, int usualMs,
                                  const Command& command, Terminal& terminal)
{
    if (!arguments.has(name)) {
        return usualMs;
    }
    bool isNumber = false;
    const double seconds = arguments.value(name).toDouble(&isNumber);
    if (isNumber && seconds >= 0 && seconds <= maxSeconds) {
        return int(seconds * millisecondsPerSecond);
    }
    terminal.say(QStringLiteral("%1: %2 is no number of seconds from 0 to %3: %4")
                     .arg(command.name(), writtenOption(name), QString::number(maxSeconds),
                          arguments.value(name)));
    return std::nullopt;
}

CommandOption hubInterfaceOption()
{
    return {
        {interfaceOption().names},
        QStringLiteral("the network interface towards the hubs; it is looked at before they are "
                       "asked, and a silent hub that is not in its network is named"),
        QStringLiteral("NAME")};
}

std::optional<QList<NicRow>> hubSides(const Arguments& arguments, Terminal& terminal)
{
    const QString name = arguments.value(QStringLiteral("interface"));
    if (name.isEmpty()) {
        return sidesOf(systemInterfaces());
    }
    const InterfaceChoice side = chooseInterface(systemInterfaces(), name);
    if (!side.row) {
        terminal.say(side.fault);
        return std::nullopt;
    }
    terminal.say(rivalWords(side));
    return QList{*side.row};
}

QString silenceWords()
{
    const QString fault = addressFault(systemInterfaces());
    return fault.isEmpty() ? QStringLiteral("no hub answered")
                           : QStringLiteral("no hub answered; %1").arg(fault);
}
