#pragma once

#include "replyreader.h"

#include <QAbstractSocket>
#include <QBasicTimer>
#include <QByteArray>
#include <QObject>
#include <QString>

#include <chrono>

class ExchangeLog;
class QTcpSocket;

/// The connection to one hub's web API: puts one question at a time and hands out its answer.
///
/// It owns the socket and everything that goes with it: connecting when a question needs it,
/// keeping the question until the connection stands, putting the answer together, hanging up when
/// the hub wants that, and pausing before a question is put. It never blocks, sets no limit of
/// time, and reports no failure: a question without an answer stays open, and trouble() says what
/// the connection went through meanwhile.
class HttpConnection : public QObject
{
    Q_OBJECT

public:
    /// What befell the connection since the last question.
    enum class Trouble
    {
        None,        ///< nothing: a question without an answer is met with silence
        Refused,     ///< the hub's address takes no connection at this port
        Unreachable, ///< no way led to the hub's address, or this system refused the connection
        Broken       ///< the hub hung up
    };

    /// `address` is dotted IPv4 text. Nothing happens before the first call.
    HttpConnection(const QString& address, QObject* parent);

    /// From now on every connection has its questions and their answers written down; null ends
    /// that. `log` is not owned. What goes out stays the same.
    static void writeTo(ExchangeLog* log);

    const QString& address() const { return m_address; }

    /// Connects, unless there is a connection or one is on its way.
    void open();

    /// Puts a question, connecting first where needed. One that is still open is forgotten, and
    /// what has arrived so far is no answer to the new one.
    void ask(const QString& request);

    /// The same after at least this pause. Whatever the hub says in the pause is no answer.
    void askAfter(std::chrono::milliseconds pause, const QString& request);

    /// Breaks the connection off at once and forgets the question, also one whose pause is still
    /// under way. Nothing is emitted because of it.
    void drop();

    Trouble trouble() const { return m_trouble; }

Q_SIGNALS:
    /// Bytes have come in, asked for or not; emitted before they are looked at.
    void arrived();

    /// The whole text of the reply to the question. A receiver may ask, drop and start anew, but
    /// must not destroy the connection.
    void replied(const QString& reply);

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void tcpConnected();
    void tcpReadyRead();
    void tcpFailed(QAbstractSocket::SocketError error);

private:
    void prepare(const QString& request);
    void send();
    void writeUnsent();
    void answer(const QString& reply);

    QString m_address;
    QTcpSocket* m_socket;
    QBasicTimer m_pause;
    QByteArray m_unsent; ///< the question that waits for its pause or for the connection
    QString m_askedLine; ///< the first line of the last question, where it is written down
    bool m_isAsked = false;
    ReplyReader m_reader;
    Trouble m_trouble = Trouble::None;
};
