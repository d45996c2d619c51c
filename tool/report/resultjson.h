#pragma once

#include "jsonfields.h"
#include "jsontext.h"

#include <QByteArray>

/// The results of other commands, read from their JSON; a `Reading` has a `fault`.

/// The list under a key; that it is missing is a fault.
QJsonArray requiredList(JsonFields& fields, const QString& key);

/// Reads a text by `take`, which adds to `faults` what is wrong. The first of them is the
/// reading's, or that the text is no JSON.
template <typename Reading>
Reading readResult(const QByteArray& text,
                   void (*take)(JsonFields& fields, QStringList& faults, Reading& reading))
{
    Reading reading;
    const QJsonObject root = readJsonText(text, reading.fault);
    if (reading.fault.isEmpty()) {
        QStringList faults;
        JsonFields fields(root, QString(), &faults);
        take(fields, faults, reading);
        reading.fault = faults.value(0);
    }
    return reading;
}
