#include "plancommand.h"

#include "arguments.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "installablehubs.h"
#include "installplan.h"
#include "installwords.h"
#include "planfiles.h"
#include "terminal.h"
#include "texttable.h"

#include <QJsonArray>

namespace {

QString hubOption()
{
    return QStringLiteral("hub");
}

QString filesOption()
{
    return QStringLiteral("files");
}

QString jsonOption()
{
    return QStringLiteral("json");
}

struct HubPlan
{
    DeviceEntry hub;
    InstallPlan plan;
};

/// The plans of the hubs of these addresses, or of all when there are none; an address that no hub
/// has goes into `unknown`.
QList<HubPlan> plansOf(HallDocument& hall, const QStringList& wanted, QStringList& unknown)
{
    unknown = wanted;
    QList<HubPlan> plans;
    for (const DeviceEntry& hub : installableHubs(hall)) {
        if (wanted.isEmpty() || wanted.contains(hub.ipAddress)) {
            plans.append({hub, planInstallation(hub.ipAddress, hall)});
        }
        unknown.removeAll(hub.ipAddress);
    }
    return plans;
}

/// Writes the bodies of all plans, unless `folder` is empty; a fault as writeBodies() tells it.
QString writtenFiles(const QList<HubPlan>& plans, const QString& folder)
{
    QString fault;
    for (qsizetype index = 0; index < plans.size() && fault.isEmpty() && !folder.isEmpty();
         ++index) {
        const HubPlan& planned = plans.at(index);
        fault = writeBodies(folder, planned.hub.ipAddress, planned.plan);
    }
    return fault;
}

QString kindOf(const PlannedRequest& request)
{
    switch (request.place.step) {
    case InstallStep::PresetEntry:
        return QStringLiteral("preset entry");
    case InstallStep::HubFile:
        return QStringLiteral("file of the hub");
    case InstallStep::PeripheralFile:
        return QStringLiteral("file of ") + request.place.deviceAddress;
    default:
        return QStringLiteral("recall of preset 1");
    }
}

QString planText(const HubPlan& planned)
{
    TextTable table({QStringLiteral("Preset"), QStringLiteral("Request"),
                     QStringLiteral("Stored as"), QStringLiteral("Bytes")});
    table.alignRight(0);
    table.alignRight(3);
    for (const PlannedRequest& request : planned.plan.requests) {
        const int preset = request.place.presetNumber;
        const bool isOwn = request.place.step == InstallStep::HubFile;
        table.addRow({preset == 0 ? QString() : QString::number(preset), kindOf(request),
                      isOwn ? QStringLiteral("(the hub's name)") : request.storageName,
                      QString::number(request.body.size())});
    }
    TextTable heading(1);
    heading.addRow({QStringLiteral("%1, %2").arg(planned.hub.label, planned.hub.ipAddress)});
    return heading.text() + u'\n' + table.text();
}

QJsonObject planJson(const PlannedRequest& request, const QString& hubAddress)
{
    static const QHash<InstallStep, QString> kinds{
        {InstallStep::PresetEntry, QStringLiteral("preset-entry")},
        {InstallStep::HubFile, QStringLiteral("hub-file")},
        {InstallStep::PeripheralFile, QStringLiteral("device-file")},
        {InstallStep::Recall, QStringLiteral("recall")}};
    return {{QStringLiteral("kind"), kinds.value(request.place.step)},
            {QStringLiteral("preset"), request.place.presetNumber},
            {QStringLiteral("device"), request.place.deviceAddress},
            {QStringLiteral("storage"), request.storageName},
            {QStringLiteral("bytes"), request.body.size()},
            {QStringLiteral("file"), bodyFile(hubAddress, request)}};
}

QJsonObject planJson(const HubPlan& planned)
{
    QJsonArray requests;
    for (const PlannedRequest& request : planned.plan.requests) {
        requests.append(planJson(request, planned.hub.ipAddress));
    }
    return {{QStringLiteral("address"), planned.hub.ipAddress},
            {QStringLiteral("label"), planned.hub.label},
            {QStringLiteral("requests"), requests},
            {QStringLiteral("missing"), reasonWords(planned.plan.outcome)}};
}

void writePlans(const QList<HubPlan>& plans, bool isJson, Terminal& terminal)
{
    QStringList texts;
    QJsonArray hubs;
    for (const HubPlan& planned : plans) {
        if (isJson) {
            hubs.append(planJson(planned));
        } else {
            texts.append(planText(planned));
        }
    }
    if (isJson) {
        terminal.write(QJsonObject{{QStringLiteral("hubs"), hubs}});
    } else {
        terminal.write(texts.join(u'\n'));
    }
}

/// What keeps the hall from being installed.
QStringList obstacles(HallDocument& hall, const QList<HubPlan>& plans)
{
    QStringList lines = hallFaults(hall);
    if (plans.isEmpty()) {
        lines.append(QStringLiteral("there is no hub in any room"));
    }
    for (const HubPlan& planned : plans) {
        if (!planned.plan.outcome.isInstalled) {
            lines.append(planned.hub.ipAddress + QStringLiteral(": ") +
                         reasonWords(planned.plan.outcome));
        }
    }
    return lines;
}

} // namespace

QString PlanCommand::name() const
{
    return QStringLiteral("plan");
}

QString PlanCommand::summary() const
{
    return QStringLiteral("Tells what each hub would be sent");
}

QString PlanCommand::details() const
{
    return QStringLiteral(
        "Walks the installation without a hub and lists its requests in their order: "
        "preset entries, storage files with their sizes, the recall. Logging in and "
        "the names under which hubs keep their own files depend on the hubs and are "
        "left out. When the hall lacks what a request needs or makes no sense, the exit "
        "code is 1 and no bodies are written.");
}

CommandSyntax PlanCommand::syntax() const
{
    return {
        {{QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
        {{{hubOption()},
          QStringLiteral("this hub alone; may be given more than once"),
          QStringLiteral("ADDRESS"),
          true},
         {{filesOption()},
          QStringLiteral("writes the bodies of the requests below this folder, byte for byte as "
                         "they would be sent"),
          QStringLiteral("FOLDER")},
         {{jsonOption()}, QStringLiteral("lists it as JSON")}}};
}

ExitCode PlanCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QString path = arguments.operand(0);
    const QString folder = arguments.value(filesOption());
    if (!folder.isEmpty() && !isFree(folder)) {
        terminal.say(folder + QStringLiteral(": this folder is not empty; choose another one"));
        return ExitCode::WrongUsage;
    }
    const HallReading reading = readHallFile(path);
    if (reading.hall == nullptr) {
        terminal.say(reading.fault);
        return ExitCode::CouldNotBeTried;
    }
    QStringList unknown;
    const QList<HubPlan> plans = plansOf(*reading.hall, arguments.values(hubOption()), unknown);
    if (!unknown.isEmpty()) {
        terminal.say(
            QStringLiteral("%1: %2 is no hub in a room of this hall").arg(path, unknown.first()));
        return ExitCode::WrongUsage;
    }
    const QStringList inTheWay = obstacles(*reading.hall, plans);
    // Bodies of a hall that makes no sense would not be those of any installation.
    const QString unwritten = inTheWay.isEmpty() ? writtenFiles(plans, folder) : QString();
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    writePlans(plans, arguments.has(jsonOption()), terminal);
    for (const QString& line : inTheWay) {
        terminal.say(path + QStringLiteral(": ") + line);
    }
    return inTheWay.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}
