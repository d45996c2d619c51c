#include "replacecommand.h"

#include "arguments.h"
#include "changedhubs.h"
#include "devicemove.h"
#include "devicetexts.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "hallhubs.h"
#include "halloutput.h"
#include "networkoptions.h"
#include "networksearch.h"
#include "probeaddress.h"
#include "replacement.h"
#include "shellword.h"
#include "terminal.h"

namespace {

QString interfaceName()
{
    return QStringLiteral("interface");
}

QString macOption()
{
    return QStringLiteral("mac");
}

QString labelOption()
{
    return QStringLiteral("label");
}

QString output()
{
    return QStringLiteral("o");
}

/// What is wrong with the arguments, whatever the file holds.
QString faultOf(const Arguments& arguments)
{
    const QString address = arguments.operand(2);
    const QString unfit = probeFault(address, systemInterfaces());
    if (!unfit.isEmpty()) {
        return QStringLiteral("replace: NEW %1: %2").arg(unfit, address);
    }
    const QString mac = arguments.value(macOption());
    if (!mac.isEmpty() && !isMacAddress(mac)) {
        return QStringLiteral("replace: --mac is no MAC address such as 00:A0:DE:10:00:01: ") + mac;
    }
    const QString label = arguments.value(labelOption());
    if (!label.isEmpty() && !isDeviceName(label)) {
        return QStringLiteral("replace: --label is no name for a device, 1 to %1 letters, digits "
                              "and dashes: %2")
            .arg(QString::number(maxDeviceNameLength), label);
    }
    return hallOutputFault(arguments.value(output()), arguments.operand(0));
}

/// What is wrong with them for this hall.
QString faultOf(const Arguments& arguments, const DocumentData& hall)
{
    const QString file = arguments.operand(0);
    const QString old = arguments.operand(1);
    const QString address = arguments.operand(2);
    if (hall.devices.find(old) == nullptr) {
        return QStringLiteral("%1: %2 is no device of this hall").arg(file, old);
    }
    return address != old && hall.devices.find(address) != nullptr
               ? QStringLiteral("%1: %2 is another device of this hall; two that exchanged their "
                                "addresses take three steps, see tesselctl replace --help")
                     .arg(file, address)
               : QString();
}

/// What the network says of the new device.
struct Answer
{
    std::optional<JudgedDevice> device = {};
    QString words = {};               ///< how its address behaved, unless as it should
    std::optional<ExitCode> end = {}; ///< set when a MAC address does not help either
};

Answer asked(const Arguments& arguments, int waitMs, Terminal& terminal)
{
    const QString address = arguments.operand(2);
    const SearchResult search =
        searchNetwork(arguments.value(interfaceName()), waitMs, {address}, terminal);
    if (!search.fault.isEmpty()) {
        return {{},
                QStringLiteral("it could not be asked: ") + search.fault,
                search.isInterrupted || arguments.has(interfaceName())
                    ? std::optional(ExitCode::CouldNotBeTried)
                    : std::nullopt};
    }
    const Probe probe = search.probes.first();
    const JudgedDevice* device = answerFrom(address, search.devices);
    return {device != nullptr ? std::optional(*device) : std::nullopt,
            probe.result == ProbeResult::Answers ? QString() : probeWords(probe, search.side),
            probe.result == ProbeResult::RefusesText ? std::optional(ExitCode::SomethingIsNot)
                                                     : std::nullopt};
}

/// The faults of the hall with the new device in it that it did not have with the old one.
QStringList newFaults(QStringList faults, const QStringList& formerFaults)
{
    for (const QString& former : formerFaults) {
        faults.removeOne(former);
    }
    return faults;
}

void say(const QString& place, const QStringList& lines, Terminal& terminal)
{
    for (const QString& line : lines) {
        if (!line.isEmpty()) {
            terminal.say(place + QStringLiteral(": ") + line);
        }
    }
}

/// What is left to do.
QString nextStep(const QString& path, const QList<DeviceData>& hubs)
{
    if (hubs.isEmpty()) {
        return QStringLiteral("nothing has to be installed for it: no hub is sent anything else "
                              "than before");
    }
    QString command = QStringLiteral("next: tesselctl install ") + shellWord(path);
    for (const QString& address : addressesOf(hubs)) {
        command += QStringLiteral(" --hub ") + address;
    }
    return command;
}

/// Puts the new device into the old one's place and writes the hall.
ExitCode replaced(HallDocument& hall, const Arguments& arguments, const DeviceData& device,
                  Terminal& terminal)
{
    HallDocument former(hall.data());
    moveDevice(hall.data(), arguments.operand(1), device.ipAddress);
    const QStringList formerFaults = hallFaults(hall);
    *hall.data().devices.find(device.ipAddress) = device;
    const QStringList faults = hallFaults(hall);
    say(arguments.operand(0), faults, terminal);
    if (!newFaults(faults, formerFaults).isEmpty()) {
        return ExitCode::SomethingIsNot;
    }
    const QString path = arguments.value(output());
    const QString unwritten = writeHallFile(path, hall.data());
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    terminal.say(QStringLiteral("%1: \"%2\" is %3 now, with the MAC address %4")
                     .arg(path, device.label, device.ipAddress, device.macAddress));
    terminal.say(nextStep(path, changedHubs(former, hall, device.ipAddress)));
    return faults.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}

/// Asks the network for the new device, and goes on when it may take the old one's place.
ExitCode judged(HallDocument& hall, const Arguments& arguments, int waitMs, Terminal& terminal)
{
    const ReplacementWish wish{arguments.operand(2), arguments.value(macOption()).toUpper(),
                               arguments.value(labelOption())};
    const Answer answer = asked(arguments, waitMs, terminal);
    if (answer.end) {
        say(wish.address, {answer.words}, terminal);
        return *answer.end;
    }
    if (!answer.device && wish.mac.isEmpty()) {
        terminal.say(QStringLiteral("%1: %2; its MAC address has to be given with --mac")
                         .arg(wish.address, answer.words));
        return ExitCode::CouldNotBeTried;
    }
    const DeviceData old = *hall.data().devices.find(arguments.operand(1));
    const Replacement replacement =
        replacementFor(old, wish, answer.device ? &*answer.device : nullptr);
    if (!replacement.fault.isEmpty()) {
        say(wish.address, {replacement.fault}, terminal);
        return ExitCode::SomethingIsNot;
    }
    say(wish.address, {answer.words, replacement.note}, terminal);
    return replaced(hall, arguments, replacement.device, terminal);
}

} // namespace

QString ReplaceCommand::name() const
{
    return QStringLiteral("replace");
}

QString ReplaceCommand::summary() const
{
    return QStringLiteral("Puts a new device into the place of an old one");
}

QString ReplaceCommand::details() const
{
    return QStringLiteral(
        "NEW takes over OLD's room, and its sets and sides in every layout; it may be OLD's own "
        "address, where a device was exchanged for another one of that address. The network is "
        "asked for its MAC address, model and firmware, and they are judged. Where it does not "
        "answer, --mac is required, and it is taken to be of OLD's model.\n"
        "The new device keeps its name, unless --label gives it another one or OLD had been "
        "renamed: then the installation gives it that name.\n"
        "Two devices at A and B that exchanged their addresses are replaced in three steps, each "
        "from the file that the one before wrote, with F an address that nobody has and any MAC "
        "address M: A F --mac M, then B A, then F B. If they changed places as well, so that each "
        "place kept its address: A F --mac M, then B B, then F A.");
}

CommandSyntax ReplaceCommand::syntax() const
{
    return {
        {{QStringLiteral("FILE"), QStringLiteral("the configuration file")},
         {QStringLiteral("OLD"), QStringLiteral("the address of a device in it")},
         {QStringLiteral("NEW"), QStringLiteral("the address of the one that takes its place")}},
        {{{output()},
          QStringLiteral("the configuration file to write"),
          QStringLiteral("FILE.tessel"),
          false,
          true},
         {{macOption()}, QStringLiteral("the MAC address of NEW"), QStringLiteral("MAC")},
         {{labelOption()}, QStringLiteral("the name to give to NEW"), QStringLiteral("NAME")},
         interfaceOption(),
         secondsOption(QStringLiteral("wait"),
                       QStringLiteral("how long to wait for its answer (5), and again when "
                                      "only NEW itself is asked"))}};
}

ExitCode ReplaceCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const std::optional<int> waitMs =
        millisecondsOf(arguments, QStringLiteral("wait"), usualSearchMs, *this, terminal);
    if (!waitMs) {
        return ExitCode::WrongUsage;
    }
    const QString misled = faultOf(arguments);
    if (!misled.isEmpty()) {
        terminal.say(misled);
        return ExitCode::WrongUsage;
    }
    const HallReading reading = readHallFile(arguments.operand(0));
    if (reading.hall == nullptr) {
        terminal.say(reading.fault);
        return ExitCode::CouldNotBeTried;
    }
    const QString unfit = faultOf(arguments, reading.hall->data());
    if (!unfit.isEmpty()) {
        terminal.say(unfit);
        return ExitCode::WrongUsage;
    }
    return judged(*reading.hall, arguments, *waitMs, terminal);
}
