#include "jsonfields.h"

JsonFields::JsonFields(const QJsonObject& object, const QString& where, QString* error)
    : m_object(object)
    , m_where(where)
    , m_error(error)
{
}

QString JsonFields::text(const QString& key, const QString& fallback)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isString()) {
        complain(key, QStringLiteral("is no text"));
    }
    return found.toString(fallback);
}

int JsonFields::number(const QString& key, int fallback, int least, int most)
{
    const QJsonValue found = value(key);
    if (found.isUndefined()) {
        return fallback;
    }
    const int number = found.toInt(least - 1);
    if (number < least || number > most) {
        complain(key, QStringLiteral("is no whole number from %1 to %2").arg(least).arg(most));
        return fallback;
    }
    return number;
}

bool JsonFields::flag(const QString& key, bool fallback)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isBool()) {
        complain(key, QStringLiteral("is neither true nor false"));
    }
    return found.toBool(fallback);
}

QJsonValue JsonFields::value(const QString& key)
{
    m_known.append(key);
    return m_object.value(key);
}

void JsonFields::complain(const QString& key, const QString& problem)
{
    if (m_error->isEmpty()) {
        *m_error = QStringLiteral("%1: \"%2\" %3").arg(m_where, key, problem);
    }
}

void JsonFields::finish()
{
    for (const QString& key : m_object.keys()) {
        if (!m_known.contains(key)) {
            complain(key, QStringLiteral("means nothing here"));
        }
    }
}
