#pragma once

#include <QList>
#include <QObject>
#include <QString>

class HttpConnection;
class IHttpSequence;

/// Works through a list of requests to one hub, one after the other over one connection.
///
/// What is asked and what an answer means is up to the steps. A hub that does not answer leaves it
/// waiting: there is no time-out.
class HttpReadWrite : public QObject
{
    Q_OBJECT

public:
    /// `address` is dotted IPv4 text. `password` is kept for the steps that need it.
    HttpReadWrite(const QString& address, const QString& password, QObject* parent);

    /// Sends the first step's request, connecting where needed. A sequence that is still under way
    /// is dropped, without completed() being called for it, and its connection with it: what the
    /// hub still has to say must not be taken for an answer to the new one.
    virtual void start();

protected:
    /// Called once at the end of every sequence: true when every step succeeded. Does nothing by
    /// default.
    virtual void completed(bool success);

    /// Appends a step; it must be a child of this object.
    void appendStep(IHttpSequence* step);

    const QString& address() const;
    const QString& password() const { return m_password; }

private Q_SLOTS:
    void evaluate(const QString& reply);

private:
    QString currentRequest() const;
    void advance();
    void tryAgain();
    void end(bool success);

    QString m_password;
    HttpConnection* m_connection;
    QList<IHttpSequence*> m_steps;
    qsizetype m_stepIndex = 0;
    int m_retries = 0;
    bool m_isRunning = false;
};
