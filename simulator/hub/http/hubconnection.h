#pragma once

#include "hubrequestparser.h"
#include "pacedwriter.h"
#include "replyplan.h"

#include <QObject>
#include <functional>

class QTcpSocket;

/// One connection to a hub's HTTP port: takes requests however their bytes arrive, split or
/// joined, and sends the replies in order.
class HubConnection : public QObject
{
    Q_OBJECT

public:
    /// Answers what was read: a complete or a malformed request; the text is the address at which
    /// the hub was reached.
    using Answerer = std::function<ReplyPlan(const RequestReading&, const QString&)>;

    /// Takes the socket over and deletes itself once the connection has ended.
    HubConnection(QTcpSocket* socket, Answerer answerer, QObject* parent);

    /// Ends the connection at once, without sending what is still to be sent.
    void abort();

Q_SIGNALS:
    /// A request was answered by a reboot of `deafMs`.
    void rebootAsked(int deafMs);
    /// The peer ended the connection after these bytes, which nobody has answered.
    void endedInside(const QByteArray& bytes);

private Q_SLOTS:
    void readMore();
    void processNext();
    void finish();

private:
    bool processOne();
    void answer(const RequestReading& reading);

    QTcpSocket* m_socket;
    Answerer m_answerer;
    PacedWriter m_writer;
    QByteArray m_buffer;
    bool m_isOver = false;
};
