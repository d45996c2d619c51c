#include "showcommand.h"

#include "arguments.h"
#include "hallfile.h"
#include "terminal.h"
#include "texttable.h"

QString ShowCommand::name() const
{
    return QStringLiteral("show");
}

QString ShowCommand::summary() const
{
    return QStringLiteral("Shows what a configuration file holds");
}

CommandSyntax ShowCommand::syntax() const
{
    return {{{QStringLiteral("FILE"), QStringLiteral("the configuration file")}}, {}};
}

ExitCode ShowCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const HallReading reading = readHallFile(arguments.operand(0));
    if (reading.hall == nullptr) {
        terminal.say(reading.fault);
        return ExitCode::CouldNotBeTried;
    }
    TextTable table({QStringLiteral("Device"), QStringLiteral("Model"), QStringLiteral("Address"),
                     QStringLiteral("MAC address")});
    for (const DeviceData& device : reading.hall->data().devices.all()) {
        table.addRow({device.label, device.modelName, device.ipAddress, device.macAddress});
    }
    terminal.write(table.text());
    return ExitCode::AllIsWell;
}
