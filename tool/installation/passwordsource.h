#pragma once

#include <QObject>
#include <QString>

/// What a hub wants to be told.
struct PasswordWish
{
    QString address;         ///< the hub's
    bool isFirst = false;    ///< it has no password yet and is to get this one
    bool wasRefused = false; ///< the one before was told, and the hub did not take it
    QString refusal = {};    ///< what it answered to that, such as "401 Unauthorized"
};

/// Whoever knows the passwords of the hubs, or knows whom to ask.
class PasswordSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Answers with given() or withheld(), now or later. Several hubs may ask at a time, each of
    /// them once.
    virtual void ask(const PasswordWish& wish) = 0;

public Q_SLOTS:
    /// Nobody waits for an answer any more.
    virtual void stop() {}

Q_SIGNALS:
    void given(const QString& address, const QString& password);
    /// There is none, or no other one, for the reason told.
    void withheld(const QString& address, const QString& reason);
    /// Whoever was asked is gone without an answer, and nothing may begin that nobody watches.
    void lost();
};
