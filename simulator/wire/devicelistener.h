#pragma once

#include <QHostAddress>
#include <QObject>
#include <QTcpServer>

class QTcpSocket;

/// Takes connections to one address and port, and can be closed and opened again.
class DeviceListener : public QObject
{
    Q_OBJECT

public:
    DeviceListener(const QString& address, quint16 port, QObject* parent);

    /// Listens from now on; true when it already does. On failure false, with `error` in plain
    /// words.
    bool open(QString* error);
    /// Connections are refused from now on; those that were taken stay.
    void close();

Q_SIGNALS:
    /// A connection was taken. Its socket belongs to the receiver.
    void accepted(QTcpSocket* socket);

private Q_SLOTS:
    void acceptPending();

private:
    QString failure() const;

    QHostAddress m_address;
    quint16 m_port;
    QTcpServer m_server;
};
