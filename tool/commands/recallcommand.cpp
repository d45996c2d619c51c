#include "recallcommand.h"

#include "arguments.h"
#include "hallfile.h"
#include "hallhubs.h"
#include "networkoptions.h"
#include "presetround.h"
#include "resultkeys.h"
#include "terminal.h"
#include "texttable.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

namespace Key = ResultKey;

constexpr int usualWaitMs = 10000;

/// What was read back from each hub.
struct Recall
{
    int layout = 0;
    QList<DeviceData> hubs;
    QList<std::optional<int>> presets; ///< of the hubs, in their order
};

/// Whether one of them tells which preset is active.
bool isAnyoneThere(const QList<DeviceData>& hubs, int waitMs)
{
    PresetRound round(addressesOf(hubs), waitMs, nullptr);
    QEventLoop untilKnown;
    QObject::connect(&round, SIGNAL(answered()), &untilKnown, SLOT(quit()));
    QObject::connect(&round, SIGNAL(finished()), &untilKnown, SLOT(quit()));
    round.read();
    untilKnown.exec();
    return std::any_of(hubs.begin(), hubs.end(), [&round](const DeviceData& hub) {
        return round.preset(hub.ipAddress).has_value();
    });
}

Recall recalled(int layout, const QList<DeviceData>& hubs, int waitMs)
{
    PresetRound round(addressesOf(hubs), waitMs, nullptr);
    QEventLoop untilFinished;
    QObject::connect(&round, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    QHash<QString, int> numbers;
    for (const DeviceData& hub : hubs) {
        numbers.insert(hub.ipAddress, layout);
    }
    round.recall(numbers, 0);
    untilFinished.exec();
    Recall recall{layout, hubs, {}};
    for (const DeviceData& hub : hubs) {
        recall.presets.append(round.preset(hub.ipAddress));
    }
    return recall;
}

QString tableOf(const Recall& recall)
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

QJsonObject objectOf(const Recall& recall)
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
        {secondsOption(QStringLiteral("wait"), QStringLiteral("how long each hub has for it (10)")),
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
    if (!isAnyoneThere(hubs, *waitMs)) {
        terminal.say(silenceWords());
        return ExitCode::CouldNotBeTried;
    }
    const Recall recall = recalled(*layout, hubs, *waitMs);
    if (arguments.has(QStringLiteral("json"))) {
        terminal.write(objectOf(recall));
    } else {
        terminal.write(tableOf(recall));
    }
    ExitCode code = ExitCode::AllIsWell;
    for (qsizetype index = 0; index < hubs.size(); ++index) {
        if (recall.presets.at(index) != *layout) {
            terminal.say(QStringLiteral("%1: layout %2: %3")
                             .arg(hubName(hubs.at(index)), QString::number(*layout),
                                  readBackWords(recall.presets.at(index), *layout)));
            code = ExitCode::SomethingIsNot;
        }
    }
    return code;
}
