#include "networkoptions.h"

#include "arguments.h"
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

QString silenceWords()
{
    const QString fault = addressFault(systemInterfaces());
    return fault.isEmpty() ? QStringLiteral("no hub answered")
                           : QStringLiteral("no hub answered; %1").arg(fault);
}
