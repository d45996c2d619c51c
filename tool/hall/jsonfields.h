#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

/// Reads one object of a JSON text that people write by hand. What is missing has its default; what
/// is of another type, beyond its range, or under a key that nothing asks for, is a fault, which
/// names its place: ".devices[2].mac".
class JsonFields
{
public:
    /// `faults` is not owned and gets a line for each fault. `value` is a fault unless it is an
    /// object.
    JsonFields(const QJsonValue& value, const QString& place, QStringList* faults);

    const QString& place() const { return m_place; }

    bool has(const QString& key);
    QString text(const QString& key, const QString& missing = {});
    /// The same; that it is missing, or empty, is a fault.
    QString requiredText(const QString& key);
    int number(const QString& key, int min, int max, int missing);
    bool flag(const QString& key);
    QJsonArray list(const QString& key);
    /// A list of texts; others in it are faults.
    QStringList texts(const QString& key);
    QJsonValue value(const QString& key);

    /// Says what is wrong with the value of a key.
    void fault(const QString& key, const QString& reason);

    /// Makes faults of all keys that were not asked for. Asks for nothing afterwards.
    void finish();

private:
    QString checked(const QString& key, const QString& text);

    QJsonObject m_object;
    QString m_place;
    bool m_isObject; ///< if not, that is fault enough
    QStringList* m_faults;
    QStringList m_known;
};

/// The place of an item of a list.
QString itemPlace(const QString& list, qsizetype index);
