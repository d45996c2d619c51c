#include "foundjson.h"

#include "jsonfields.h"
#include "jsontext.h"
#include "jsontime.h"
#include "resultkeys.h"

namespace {

namespace Key = ResultKey;

/// The second port of a hub is nothing wrong: the hub is listed under its other address.
bool isRefused(const QString& verdict)
{
    return !verdict.isEmpty() && verdict != u"taken" && verdict != u"second-port";
}

FoundDevice deviceFrom(JsonFields fields)
{
    FoundDevice device{fields.requiredText(Key::address()),
                       fields.text(Key::mac()),
                       fields.text(Key::firmware()),
                       fields.text(Key::serial()),
                       {}};
    const QString verdict = fields.text(Key::verdict());
    const QString reason = fields.text(Key::reason(), verdict);
    if (isRefused(verdict)) {
        device.refusal = reason;
    }
    return device;
}

} // namespace

FoundReading readFoundJson(const QByteArray& text)
{
    FoundReading reading;
    const QJsonObject root = readJsonText(text, reading.fault);
    if (!reading.fault.isEmpty()) {
        return reading;
    }
    QStringList faults;
    JsonFields fields(root, QString(), &faults);
    if (!fields.has(Key::devices())) {
        fields.fault(Key::devices(), QStringLiteral("this is missing"));
    }
    reading.date = timeFrom(fields, Key::begun()).date();
    const QJsonArray items = fields.list(Key::devices());
    for (qsizetype index = 0; index < items.size() && faults.isEmpty(); ++index) {
        reading.devices.append(
            deviceFrom({items.at(index), itemPlace(u'.' + Key::devices(), index), &faults}));
    }
    reading.fault = faults.value(0);
    return reading;
}
