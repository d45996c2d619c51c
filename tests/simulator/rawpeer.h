#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpSocket>

/// A peer that sends what the test wrote down and keeps what arrives, packet by packet. It knows
/// nothing of the protocols.
class RawPeer : public QObject
{
    Q_OBJECT

public:
    /// Connects unless it is connected; false when the connection is refused or does not come
    /// about.
    bool connectTo(const QString& address, quint16 port);
    /// Sends the bytes in one packet.
    void send(const QByteArray& bytes);
    /// All that has arrived since the last call of take().
    QByteArray received() const { return m_packets.join(); }
    /// The same, as it was read.
    QList<QByteArray> packets() const { return m_packets; }
    /// Ends the connection once everything has been sent.
    void close();
    /// Waits until one whole HTTP reply has arrived and takes it; empty when none comes.
    QByteArray takeReply();
    /// Waits until a line has arrived and takes everything that has; empty when none comes.
    QByteArray takeLine();
    /// True while the other side has not ended the connection.
    bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    /// The address of this side.
    QString ownAddress() const;

private Q_SLOTS:
    void readAll();

private:
    bool hasReply() const;

    QTcpSocket m_socket;
    QList<QByteArray> m_packets;
};
