#include "jsonfields.h"

#include "orderedxml.h"

#include <cmath>

JsonFields::JsonFields(const QJsonValue& value, const QString& place, QStringList* faults)
    : m_object(value.toObject())
    , m_place(place)
    , m_isObject(value.isObject())
    , m_faults(faults)
{
    if (!m_isObject) {
        m_faults->append(place + QStringLiteral(": this is no object"));
    }
}

bool JsonFields::has(const QString& key)
{
    return !value(key).isUndefined();
}

QString JsonFields::text(const QString& key, const QString& missing)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isString()) {
        fault(key, QStringLiteral("this is no text"));
    }
    return found.isString() ? checked(key, found.toString()) : missing;
}

QString JsonFields::requiredText(const QString& key)
{
    const QString found = text(key);
    if (found.isEmpty() && (!has(key) || value(key).isString())) {
        fault(key, QStringLiteral("this is missing"));
    }
    return found;
}

int JsonFields::number(const QString& key, int min, int max, int missing)
{
    const QJsonValue found = value(key);
    if (found.isUndefined()) {
        return missing;
    }
    const double number = found.toDouble(std::nan(""));
    // A text is no number, and neither comparison holds for it.
    if (number >= min && number <= max && std::floor(number) == number) {
        return int(number);
    }
    fault(key, QStringLiteral("this is no number from %1 to %2").arg(min).arg(max));
    return missing;
}

bool JsonFields::flag(const QString& key)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isBool()) {
        fault(key, QStringLiteral("this is neither true nor false"));
    }
    return found.toBool();
}

QJsonArray JsonFields::list(const QString& key)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isArray()) {
        fault(key, QStringLiteral("this is no list"));
    }
    return found.toArray();
}

QStringList JsonFields::texts(const QString& key)
{
    QStringList texts;
    const QJsonArray items = list(key);
    for (const QJsonValue item : items) {
        if (!item.isString()) {
            fault(key, QStringLiteral("not all of these are texts"));
            return {};
        }
        texts.append(checked(key, item.toString()));
    }
    return texts;
}

QJsonValue JsonFields::value(const QString& key)
{
    m_known.append(key);
    return m_object.value(key);
}

void JsonFields::fault(const QString& key, const QString& reason)
{
    if (m_isObject) {
        m_faults->append(m_place + u'.' + key + QStringLiteral(": ") + reason);
    }
}

void JsonFields::finish()
{
    const QStringList keys = m_object.keys();
    for (const QString& key : keys) {
        if (!m_known.contains(key)) {
            fault(key, QStringLiteral("unknown key"));
        }
    }
}

/// A configuration file cannot carry all characters that a JSON text can.
QString JsonFields::checked(const QString& key, const QString& text)
{
    QString carried = carriedByXml(text);
    if (carried != text) {
        fault(key, QStringLiteral("it has characters that cannot be stored"));
    }
    return carried;
}

QString itemPlace(const QString& list, qsizetype index)
{
    return QStringLiteral("%1[%2]").arg(list).arg(index);
}
