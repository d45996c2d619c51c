#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

/// What a ScriptedPeer does with one request.
struct ScriptedAnswer
{
    QByteArrayList pieces; ///< written in a turn of the event loop each; none = silence
    bool close = false;    ///< close the connection after the last piece
};

/// A reply with `status` and a body of the announced length in bytes. `extra` holds further header
/// lines, each with its line end.
QByteArray httpReply(const QByteArray& status, const QByteArray& body,
                     const QByteArray& extra = QByteArray());

/// An answer of one piece: the "200" reply with this body.
ScriptedAnswer okAnswer(const QByteArray& body, const QByteArray& extra = QByteArray());

/// An answer that writes `reply` in pieces of one byte.
ScriptedAnswer bytewise(const QByteArray& reply);

/// A peer whose every byte the test decides. It listens on a loopback address at the hub's port,
/// cuts what arrives into requests and asks the script what to answer.
class ScriptedPeer : public QObject
{
    Q_OBJECT

public:
    /// Called with a whole request and its number, from 0.
    using Script = std::function<ScriptedAnswer(const QByteArray& request, qsizetype number)>;

    ScriptedPeer(const QString& address, Script script);

    /// False when the address could not be taken; the test then has no peer.
    bool isListening() const;

    const QByteArrayList& requests() const { return m_requests; }
    int connectionCount() const { return m_connectionCount; }

    /// Writes bytes that nobody asked for to the latest connection.
    void sendUnasked(const QByteArray& bytes);
    /// Closes the latest connection.
    void closeConnection();

private Q_SLOTS:
    void accept();
    void read();

private:
    void takeRequests(QTcpSocket* socket);
    void answer(QTcpSocket* socket, const ScriptedAnswer& answer);

    Script m_script;
    QTcpServer m_server;
    QHash<QTcpSocket*, QByteArray> m_received;
    QTcpSocket* m_latest = nullptr;
    QByteArrayList m_requests;
    int m_connectionCount = 0;
};
