#include "walkjson.h"

#include "jsonfields.h"
#include "jsontext.h"
#include "jsontime.h"

#include <limits>

namespace {

constexpr int maxNumber = std::numeric_limits<int>::max();

std::optional<int> presetFrom(JsonFields& fields, const QString& key)
{
    const QJsonValue value = fields.value(key);
    if (value.isUndefined() || value.isNull()) {
        return std::nullopt;
    }
    return fields.number(key, 0, maxNumber, 0);
}

QJsonArray requiredList(JsonFields& fields, const QString& key)
{
    if (!fields.has(key)) {
        fields.fault(key, QStringLiteral("this is missing"));
    }
    return fields.list(key);
}

WalkedHub hubFrom(JsonFields fields)
{
    return {fields.requiredText(QStringLiteral("address")),
            fields.text(QStringLiteral("label")),
            fields.text(QStringLiteral("mac")),
            presetFrom(fields, QStringLiteral("before")),
            presetFrom(fields, QStringLiteral("restored")),
            fields.flag(QStringLiteral("back"))};
}

WalkedLayout layoutFrom(JsonFields fields, QStringList& faults)
{
    WalkedLayout layout;
    layout.number = fields.number(QStringLiteral("number"), 1, maxNumber, 0);
    layout.rooms = fields.requiredText(QStringLiteral("rooms"));
    layout.isReached = fields.flag(QStringLiteral("reached"));
    const QString hubs = QStringLiteral("hubs");
    const QJsonArray items = requiredList(fields, hubs);
    for (qsizetype index = 0; index < items.size() && faults.isEmpty(); ++index) {
        JsonFields hub(items.at(index), itemPlace(fields.place() + u'.' + hubs, index), &faults);
        layout.presets.insert(hub.requiredText(QStringLiteral("address")),
                              presetFrom(hub, QStringLiteral("preset")));
    }
    return layout;
}

} // namespace

WalkReading readWalkJson(const QByteArray& text)
{
    WalkReading reading;
    const QJsonObject root = readJsonText(text, reading.fault);
    if (!reading.fault.isEmpty()) {
        return reading;
    }
    QStringList faults;
    JsonFields fields(root, QString(), &faults);
    fields.requiredText(QStringLiteral("begun"));
    reading.begun = timeFrom(fields, QStringLiteral("begun"));
    const QJsonArray hubs = requiredList(fields, QStringLiteral("hubs"));
    for (qsizetype index = 0; index < hubs.size() && faults.isEmpty(); ++index) {
        reading.hubs.append(
            hubFrom({hubs.at(index), itemPlace(QStringLiteral(".hubs"), index), &faults}));
    }
    const QJsonArray layouts = requiredList(fields, QStringLiteral("layouts"));
    for (qsizetype index = 0; index < layouts.size() && faults.isEmpty(); ++index) {
        reading.layouts.append(layoutFrom(
            {layouts.at(index), itemPlace(QStringLiteral(".layouts"), index), &faults}, faults));
    }
    reading.fault = faults.value(0);
    return reading;
}
