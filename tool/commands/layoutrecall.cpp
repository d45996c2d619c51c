#include "layoutrecall.h"

#include "hallhubs.h"
#include "presetround.h"

#include <QEventLoop>

#include <algorithm>

namespace {

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

} // namespace

std::optional<LayoutRecall> recallLayout(int layout, const QList<DeviceData>& hubs, int waitMs)
{
    if (!isAnyoneThere(hubs, waitMs)) {
        return std::nullopt;
    }
    PresetRound round(addressesOf(hubs), waitMs, nullptr);
    QEventLoop untilFinished;
    QObject::connect(&round, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    QHash<QString, int> numbers;
    for (const DeviceData& hub : hubs) {
        numbers.insert(hub.ipAddress, layout);
    }
    round.recall(numbers, 0);
    untilFinished.exec();
    LayoutRecall recall{layout, hubs, {}};
    for (const DeviceData& hub : hubs) {
        recall.presets.append(round.preset(hub.ipAddress));
    }
    return recall;
}

QStringList recallFaults(const LayoutRecall& recall)
{
    QStringList faults;
    for (qsizetype index = 0; index < recall.hubs.size(); ++index) {
        const std::optional<int> preset = recall.presets.at(index);
        if (preset != recall.layout) {
            faults.append(QStringLiteral("%1: layout %2: %3")
                              .arg(hubName(recall.hubs.at(index)), QString::number(recall.layout),
                                   readBackWords(preset, recall.layout)));
        }
    }
    return faults;
}
