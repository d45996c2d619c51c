#include "jsontime.h"

#include "jsonfields.h"

QDateTime timeFrom(JsonFields& fields, const QString& key)
{
    const QString text = fields.text(key);
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (!text.isEmpty() && !time.isValid()) {
        fields.fault(key, QStringLiteral("this is no date and time"));
    }
    return time;
}
