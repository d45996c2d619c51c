#include "walkjson.h"

#include "jsontime.h"
#include "resultjson.h"
#include "resultkeys.h"

#include <limits>

namespace {

namespace Key = ResultKey;

constexpr int maxNumber = std::numeric_limits<int>::max();

std::optional<int> presetFrom(JsonFields& fields, const QString& key)
{
    const QJsonValue value = fields.value(key);
    if (value.isUndefined() || value.isNull()) {
        return std::nullopt;
    }
    return fields.number(key, 0, maxNumber, 0);
}

WalkedHub hubFrom(JsonFields fields)
{
    return {fields.requiredText(Key::address()),
            fields.text(Key::label()),
            fields.text(Key::mac()),
            presetFrom(fields, Key::before()),
            presetFrom(fields, Key::restored()),
            fields.flag(Key::back())};
}

WalkedLayout layoutFrom(JsonFields fields, QStringList& faults)
{
    WalkedLayout layout;
    layout.number = fields.number(Key::number(), 1, maxNumber, 0);
    layout.rooms = fields.requiredText(Key::rooms());
    layout.isReached = fields.flag(Key::reached());
    const QJsonArray items = requiredList(fields, Key::hubs());
    for (qsizetype index = 0; index < items.size() && faults.isEmpty(); ++index) {
        JsonFields hub(items.at(index), itemPlace(fields.place() + u'.' + Key::hubs(), index),
                       &faults);
        layout.presets.insert(hub.requiredText(Key::address()), presetFrom(hub, Key::preset()));
    }
    return layout;
}

void take(JsonFields& fields, QStringList& faults, WalkReading& reading)
{
    fields.requiredText(Key::begun());
    reading.begun = timeFrom(fields, Key::begun());
    const QJsonArray hubs = requiredList(fields, Key::hubs());
    for (qsizetype index = 0; index < hubs.size() && faults.isEmpty(); ++index) {
        reading.hubs.append(
            hubFrom({hubs.at(index), itemPlace(u'.' + Key::hubs(), index), &faults}));
    }
    const QJsonArray layouts = requiredList(fields, Key::layouts());
    for (qsizetype index = 0; index < layouts.size() && faults.isEmpty(); ++index) {
        reading.layouts.append(layoutFrom(
            {layouts.at(index), itemPlace(u'.' + Key::layouts(), index), &faults}, faults));
    }
}

} // namespace

WalkReading readWalkJson(const QByteArray& text)
{
    return readResult(text, take);
}
