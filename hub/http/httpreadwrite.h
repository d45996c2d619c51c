#pragma once

#include "replyreader.h"

#include <QList>
#include <QObject>
#include <QString>

class IHttpSequence;
class QTcpSocket;

/// Works through a list of requests to one hub, one after the other over one connection.
///
/// It owns the socket and moves bytes; what is asked and what an answer means is up to the steps.
/// A hub that does not answer leaves it waiting: there is no time-out and no handling of socket
/// errors. The next start() then sends the request of the step that was waiting once more.
class HttpReadWrite : public QObject
{
    Q_OBJECT

public:
    /// `address` is dotted IPv4 text. `password` is kept for the steps that need it.
    HttpReadWrite(const QString& address, const QString& password, QObject* parent);

    /// Sends the current step's request, connecting first where needed.
    virtual void start();

protected:
    /// Called once at the end of every sequence: true when every step succeeded. The next start()
    /// then begins with the first step. Does nothing by default.
    virtual void completed(bool success);

    /// Appends a step; it must be a child of this object.
    void appendStep(IHttpSequence* step);

    const QString& address() const { return m_address; }
    const QString& password() const { return m_password; }

private Q_SLOTS:
    void tcpConnected();
    void tcpReadyRead();

private:
    void createSocket();
    void connectToHub();
    void sendRequest();
    void evaluate(const QString& reply);
    void advance();
    void tryAgain();
    void connectOrSend();
    void end(bool success);

    QString m_address;
    QString m_password;
    QTcpSocket* m_socket = nullptr;
    QList<IHttpSequence*> m_steps;
    qsizetype m_stepIndex = 0;
    int m_retries = 0;
    ReplyReader m_reader;
};
