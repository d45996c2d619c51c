#pragma once

#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

/// Stands between the wizard and a simulated hub: passes all bytes on, both ways, and keeps what
/// the wizard sent.
class RecordingRelay : public QObject
{
    Q_OBJECT

public:
    /// Listens at `address` on the port of hubs and passes on to the same port of `hub`.
    RecordingRelay(const QString& address, const QString& hub);

    bool isListening() const { return m_server.isListening(); }

    /// The requests that the wizard sent, head and body, in order.
    QList<QByteArray> requests() const;

private Q_SLOTS:
    void takeConnection();
    void passOn();
    void passBack();
    void hangUp();

private:
    QString m_hub;
    QByteArray m_sent;
    QTcpSocket m_toHub;
    QTcpServer m_server;               // hangs up when it ends, so it ends first
    QPointer<QTcpSocket> m_fromWizard; // of the latest connection
};
