#pragma once

#include "ihttpsequence.h"

#include <QObject>
#include <QString>

/// Base of the steps below, which make a hub show itself when taken in this order: knows the hub.
///
/// The `token` of a step is shared by all steps of the sequence and must outlive them.
class BaseHttpSequence : public QObject, public IHttpSequence
{
    Q_OBJECT

public:
    /// `address` is dotted IPv4 text.
    BaseHttpSequence(const QString& address, QObject* parent);

protected:
    const QString& address() const { return m_address; }

private:
    QString m_address;
};

/// Goes on only with a hub that has a password.
class GetStatus : public BaseHttpSequence
{
    Q_OBJECT

public:
    using BaseHttpSequence::BaseHttpSequence;

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;
};

/// Fetches the token under which the log-in is allowed.
class GetToken : public BaseHttpSequence
{
    Q_OBJECT

public:
    GetToken(const QString& address, QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    QString* m_token;
};

/// Logs in with the password; only its digest goes out.
class PostAuthenticate : public BaseHttpSequence
{
    Q_OBJECT

public:
    PostAuthenticate(const QString& address, const QString& password, QString* token,
                     QObject* parent);

    void buildRequest(QString& request) override;
    /// A hub may answer without a token of its own; the earlier one then stays valid.
    int evaluateReply(const QString& reply) override;

private:
    QString m_password;
    QString* m_token;
};

/// Makes the hub show itself.
class GetIdentification : public BaseHttpSequence
{
    Q_OBJECT

public:
    GetIdentification(const QString& address, const QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    const QString* m_token;
};

/// Ends the validity of the sequence's token.
class PostInvalidate : public BaseHttpSequence
{
    Q_OBJECT

public:
    PostInvalidate(const QString& address, const QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    const QString* m_token;
};
