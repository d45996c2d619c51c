#include "searching.h"

#include "arguments.h"
#include "terminal.h"

#include <QEventLoop>

std::optional<InterfaceChoice> searchSide(const Arguments& arguments, Terminal& terminal)
{
    InterfaceChoice side =
        chooseInterface(systemInterfaces(), arguments.value(QStringLiteral("interface")));
    if (!side.row) {
        terminal.say(side.fault);
        return std::nullopt;
    }
    return side;
}

bool searchToTheEnd(HallSearch& search, const InterfaceChoice& side, Terminal& terminal)
{
    QEventLoop untilFinished;
    QObject::connect(&search, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    if (!search.start()) {
        terminal.say(QStringLiteral("UDP port %1 of %2 is in use: is the wizard or another search "
                                    "open on this computer?")
                         .arg(QString::number(DeviceDetector::port), side.row->address));
        return false;
    }
    if (terminal.isWatched()) {
        terminal.say(QStringLiteral("searching on %1 (%2)").arg(side.row->name, side.row->address));
    }
    untilFinished.exec();
    return true;
}
