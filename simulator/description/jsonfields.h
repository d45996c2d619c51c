#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Takes values out of a JSON object that a person wrote, and tells the first thing that is wrong
/// with it: a value of the wrong type, out of its range, or under a name that means nothing.
class JsonFields
{
public:
    /// `where` names the object in error texts ("hub 2"). The error text is the caller's; it is
    /// set by the first error and left alone afterwards.
    JsonFields(const QJsonObject& object, const QString& where, QString* error);

    /// The text under `key`, or `fallback` when it is absent or no text.
    QString text(const QString& key, const QString& fallback);
    /// The whole number under `key`, or `fallback` when it is absent, no number or out of range.
    int number(const QString& key, int fallback, int least, int most);
    /// The truth value under `key`, or `fallback` when it is absent or none.
    bool flag(const QString& key, bool fallback);
    /// The value under `key`, of whatever type; undefined when it is absent.
    QJsonValue value(const QString& key);

    /// True when there is a value under `key`.
    bool has(const QString& key) const { return m_object.contains(key); }

    /// Tells a problem with the value under `key`.
    void complain(const QString& key, const QString& problem);
    /// To be called last: a value that nobody asked for is an error.
    void finish();

private:
    QJsonObject m_object;
    QString m_where;
    QString* m_error;
    QStringList m_known;
};
