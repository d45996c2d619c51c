#include "foundjson.h"

#include "jsonfields.h"
#include "jsontext.h"
#include "jsontime.h"

namespace {

FoundDevice deviceFrom(JsonFields fields)
{
    return {fields.requiredText(QStringLiteral("address")), fields.text(QStringLiteral("mac")),
            fields.text(QStringLiteral("firmware")), fields.text(QStringLiteral("serial"))};
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
    const QString devices = QStringLiteral("devices");
    if (!fields.has(devices)) {
        fields.fault(devices, QStringLiteral("this is missing"));
    }
    reading.date = timeFrom(fields, QStringLiteral("begun")).date();
    const QJsonArray items = fields.list(devices);
    for (qsizetype index = 0; index < items.size() && faults.isEmpty(); ++index) {
        reading.devices.append(
            deviceFrom({items.at(index), itemPlace(u'.' + devices, index), &faults}));
    }
    reading.fault = faults.value(0);
    return reading;
}
