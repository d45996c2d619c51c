#include "foundjson.h"

#include "jsontime.h"
#include "resultjson.h"
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

void take(JsonFields& fields, QStringList& faults, FoundReading& reading)
{
    const QJsonArray items = requiredList(fields, Key::devices());
    reading.date = timeFrom(fields, Key::begun()).date();
    for (qsizetype index = 0; index < items.size() && faults.isEmpty(); ++index) {
        reading.devices.append(
            deviceFrom({items.at(index), itemPlace(u'.' + Key::devices(), index), &faults}));
    }
}

} // namespace

FoundReading readFoundJson(const QByteArray& text)
{
    return readResult(text, take);
}
