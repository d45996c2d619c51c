#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

/// A device's text-command port that says exactly what a test tells it to say.
class TextPeer : public QObject
{
    Q_OBJECT

public:
    explicit TextPeer(const QString& address);

    /// Opens the port; false when it is taken.
    bool listen();

    /// Answers the next lines by itself, one entry each, and stays silent after the last.
    void answerWith(const QList<QByteArray>& answers);

    /// Sends bytes to the latest connection.
    void send(const QByteArray& bytes);

    /// Closes the latest connection from the device's side.
    void hangUp();

    /// Closes the port and the latest connection.
    void switchOff();

    const QString& address() const;
    QHostAddress hostAddress() const;

    /// Everything received so far, over all connections.
    const QByteArray& received() const;

    /// The number of complete lines received.
    int lines() const;

    /// The number of calls of send().
    int sends() const;

    int connections() const;

    /// True while the latest connection stands.
    bool isOnline() const;

private Q_SLOTS:
    void takeConnection();
    void takeBytes();

private:
    QString m_address;
    QTcpServer m_server;
    QPointer<QTcpSocket> m_socket;
    QList<QByteArray> m_answers;
    QByteArray m_received;
    int m_connections = 0;
    int m_sends = 0;
};
