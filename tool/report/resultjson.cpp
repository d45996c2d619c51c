#include "resultjson.h"

QJsonArray requiredList(JsonFields& fields, const QString& key)
{
    if (!fields.has(key)) {
        fields.fault(key, QStringLiteral("this is missing"));
    }
    return fields.list(key);
}
