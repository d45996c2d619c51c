#include "walkreport.h"

#include "hallhubs.h"
#include "resultkeys.h"
#include "texttable.h"

#include <QJsonArray>

#include <algorithm>

namespace {

namespace Key = ResultKey;

std::optional<int> presetOf(const HallWalk::Reading& reading, const DeviceData& hub)
{
    const auto found = reading.find(hub.ipAddress);
    return found != reading.end() ? std::optional(*found) : std::nullopt;
}

QJsonValue value(std::optional<int> preset)
{
    return preset ? QJsonValue(*preset) : QJsonValue();
}

bool isReached(const WalkResult& result, const SceneInfo& layout)
{
    return result.walk.read(layout.number).has_value();
}

std::optional<int> readOf(const WalkResult& result, const SceneInfo& layout, const DeviceData& hub)
{
    return presetOf(result.walk.read(layout.number).value_or(HallWalk::Reading()), hub);
}

QJsonObject layoutObject(const WalkResult& result, const SceneInfo& layout)
{
    QJsonArray hubs;
    for (const DeviceData& hub : result.hubs) {
        const std::optional<int> preset = readOf(result, layout, hub);
        hubs.append(QJsonObject{{Key::address(), hub.ipAddress},
                                {Key::preset(), value(preset)},
                                {Key::ok(), preset == layout.number}});
    }
    return {{Key::number(), layout.number},
            {Key::rooms(), layout.roomGroup},
            {Key::reached(), isReached(result, layout)},
            {Key::hubs(), hubs}};
}

/// Why a hub cannot be taken to be where it was before; empty when it can.
QString restoreFault(const WalkResult& result, const DeviceData& hub)
{
    const std::optional<int> before = presetOf(result.walk.before(), hub);
    const std::optional<int> restored = presetOf(result.walk.restored(), hub);
    if (!result.walk.hasRecalled() || before == 0 || (before && restored == before)) {
        return {};
    }
    if (!before) {
        return QStringLiteral("%1: which preset was active before could not be read, so none was "
                              "recalled again")
            .arg(hubName(hub));
    }
    return QStringLiteral("%1: preset %2 was active before and is not again: %3")
        .arg(hubName(hub), QString::number(*before), readBackWords(restored, *before));
}

QJsonObject hubObject(const WalkResult& result, const DeviceData& hub)
{
    return {{Key::address(), hub.ipAddress},
            {Key::label(), hub.label},
            {Key::mac(), hub.macAddress},
            {Key::before(), value(presetOf(result.walk.before(), hub))},
            {Key::restored(), value(presetOf(result.walk.restored(), hub))},
            {Key::back(), restoreFault(result, hub).isEmpty()}};
}

} // namespace

QString walkTable(const WalkResult& result)
{
    QStringList headings{QStringLiteral("Layout"), QStringLiteral("Rooms")};
    for (const DeviceData& hub : result.hubs) {
        headings.append(hubName(hub));
    }
    TextTable table(headings);
    for (const SceneInfo& layout : result.layouts) {
        QStringList cells{QString::number(layout.number), layout.roomGroup};
        for (const DeviceData& hub : result.hubs) {
            cells.append(walkWords(result, layout, hub));
        }
        table.addRow(cells);
    }
    return table.text();
}

QJsonObject walkObject(const WalkResult& result)
{
    QJsonArray hubs;
    for (const DeviceData& hub : result.hubs) {
        hubs.append(hubObject(result, hub));
    }
    QJsonArray layouts;
    for (const SceneInfo& layout : result.layouts) {
        layouts.append(layoutObject(result, layout));
    }
    return {{Key::begun(), result.begun.toString(Qt::ISODate)},
            {Key::ok(), isWalkRight(result)},
            {Key::hubs(), hubs},
            {Key::layouts(), layouts}};
}

qsizetype rightHubCount(const WalkResult& result, const SceneInfo& layout)
{
    return std::count_if(result.hubs.begin(), result.hubs.end(), [&](const DeviceData& hub) {
        return readOf(result, layout, hub) == layout.number;
    });
}

QString walkWords(const WalkResult& result, const SceneInfo& layout, const DeviceData& hub)
{
    return isReached(result, layout) ? readBackWords(readOf(result, layout, hub), layout.number)
                                     : QStringLiteral("not tried");
}

bool isWalkRight(const WalkResult& result)
{
    return restoreFaults(result).isEmpty() &&
           std::all_of(result.layouts.begin(), result.layouts.end(),
                       [&result](const SceneInfo& layout) {
                           return rightHubCount(result, layout) == result.hubs.size();
                       });
}

QStringList restoreFaults(const WalkResult& result)
{
    QStringList faults;
    for (const DeviceData& hub : result.hubs) {
        const QString fault = restoreFault(result, hub);
        if (!fault.isEmpty()) {
            faults.append(fault);
        }
    }
    return faults;
}

QStringList restoreNotes(const WalkResult& result)
{
    QStringList notes;
    for (const DeviceData& hub : result.hubs) {
        if (result.walk.hasRecalled() && presetOf(result.walk.before(), hub) == 0) {
            notes.append(QStringLiteral("%1: no preset was active before; it stays as it is now")
                             .arg(hubName(hub)));
        }
    }
    return notes;
}

QStringList silentHubs(const WalkResult& result)
{
    QStringList silent;
    if (result.walk.isStopped() && !result.walk.hasRecalled()) {
        return silent;
    }
    for (const DeviceData& hub : result.hubs) {
        const bool hasToldLater =
            std::any_of(result.layouts.begin(), result.layouts.end(), [&](const SceneInfo& layout) {
                return readOf(result, layout, hub).has_value();
            });
        if (!presetOf(result.walk.before(), hub) && !hasToldLater) {
            silent.append(hub.ipAddress);
        }
    }
    return silent;
}
