#include "recallcommand.h"

#include "arguments.h"
#include "foreignaddress.h"
#include "hallfile.h"
#include "hallhubs.h"
#include "layoutrecall.h"
#include "networkoptions.h"
#include "resultkeys.h"
#include "shellword.h"
#include "terminal.h"
#include "texttable.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {

namespace Key = ResultKey;

constexpr int usualWaitMs = 10000;

QString tableOf(const LayoutRecall& recall)
{
    TextTable table({QStringLiteral("Hub"), QStringLiteral("Address"),
                     QStringLiteral("Layout %1").arg(recall.layout)});
    for (qsizetype index = 0; index < recall.hubs.size(); ++index) {
        const DeviceData& hub = recall.hubs.at(index);
        table.addRow(
            {hub.label, hub.ipAddress, readBackWords(recall.presets.at(index), recall.layout)});
    }
    return table.text();
}

QJsonObject objectOf(const LayoutRecall& recall)
{
    QJsonArray hubs;
    for (qsizetype index = 0; index < recall.hubs.size(); ++index) {
        const DeviceData& hub = recall.hubs.at(index);
        const std::optional<int> preset = recall.presets.at(index);
        hubs.append(QJsonObject{{Key::address(), hub.ipAddress},
                                {Key::label(), hub.label},
                                {Key::preset(), preset ? QJsonValue(*preset) : QJsonValue()},
                                {Key::ok(), preset == recall.layout}});
    }
    return {{Key::layout(), recall.layout}, {Key::hubs(), hubs}};
}

bool isNumber(const QString& text)
{
    bool isOne = false;
    text.toInt(&isOne);
    return isOne;
}

/// Whether what should be the file is a number and the other way round.
bool isTurned(const Arguments& arguments)
{
    return isNumber(arguments.operand(1)) && !isNumber(arguments.operand(0)) &&
           !QFileInfo::exists(arguments.operand(1));
}

/// The layout that is asked for; nothing when the hall has none of that number.
std::optional<int> layoutIn(const DocumentData& hall, const QString& number)
{
    for (const SceneInfo& layout : hall.scenes) {
        if (number == QString::number(layout.number)) {
            return layout.number;
        }
    }
    return std::nullopt;
}

void write(const LayoutRecall& recall, bool isForPrograms, Terminal& terminal)
{
    if (isForPrograms) {
        terminal.write(objectOf(recall));
    } else {
        terminal.write(tableOf(recall));
    }
}

/// The addresses of those that never told which preset is active.
QStringList silentHubs(const QList<DeviceData>& hubs, const std::optional<LayoutRecall>& recall)
{
    QStringList silent = addressesOf(hubs);
    for (qsizetype index = 0; recall && index < hubs.size(); ++index) {
        if (recall->presets.at(index)) {
            silent.removeOne(hubs.at(index).ipAddress);
        }
    }
    return silent;
}

/// Recalls, writes what was read back, and says which hub is not there.
ExitCode recallOn(const QList<DeviceData>& hubs, int layout, int waitMs, const Arguments& arguments,
                  Terminal& terminal)
{
    const std::optional<QList<NicRow>> sides = hubSides(arguments, terminal);
    if (!sides) {
        return ExitCode::CouldNotBeTried;
    }
    const std::optional<LayoutRecall> recall = recallLayout(layout, hubs, waitMs);
    if (recall) {
        write(*recall, arguments.has(QStringLiteral("json")), terminal);
    }
    const QStringList faults = recall ? recallFaults(*recall) : QStringList(silenceWords());
    terminal.say(faults + foreignWords(silentHubs(hubs, recall), *sides));
    if (!recall) {
        return ExitCode::CouldNotBeTried;
    }
    return faults.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}

} // namespace

QString RecallCommand::name() const
{
    return QStringLiteral("recall");
}

QString RecallCommand::summary() const
{
    return QStringLiteral("Switches all hubs of a hall to one layout");
}

QString RecallCommand::details() const
{
    return QStringLiteral(
        "Every hub that stands in a room is told to recall the preset of that number, and is then "
        "asked which one is active. Only what it answers counts.\n"
        "Whoever is in the hall hears it: microphones and loudspeakers switch.");
}

CommandSyntax RecallCommand::syntax() const
{
    return {
        {{QStringLiteral("NUMBER"), QStringLiteral("the layout")},
         {QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
        {hubInterfaceOption(),
         secondsOption(QStringLiteral("wait"), QStringLiteral("how long each hub has for it (10)")),
         {{QStringLiteral("json")}, QStringLiteral("writes JSON instead of a table")}}};
}

ExitCode RecallCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const std::optional<int> waitMs =
        millisecondsOf(arguments, QStringLiteral("wait"), usualWaitMs, *this, terminal);
    if (!waitMs) {
        return ExitCode::WrongUsage;
    }
    const QString file = arguments.operand(1);
    if (isTurned(arguments)) {
        terminal.say(QStringLiteral("recall: the layout's number comes first: tesselctl recall %1 "
                                    "%2")
                         .arg(file, shellWord(arguments.operand(0))));
        return ExitCode::WrongUsage;
    }
    const HallReading reading = readHallFile(file);
    if (reading.hall == nullptr) {
        terminal.say(reading.fault);
        return ExitCode::CouldNotBeTried;
    }
    const std::optional<int> layout = layoutIn(reading.hall->data(), arguments.operand(0));
    if (!layout) {
        terminal.say(QStringLiteral("recall: %1 has no layout %2").arg(file, arguments.operand(0)));
        return ExitCode::WrongUsage;
    }
    const QList<DeviceData> hubs = placedHubs(reading.hall->data());
    if (hubs.isEmpty()) {
        terminal.say(QStringLiteral("%1: no hub stands in a room").arg(file));
        return ExitCode::CouldNotBeTried;
    }
    return recallOn(hubs, *layout, *waitMs, arguments, terminal);
}
