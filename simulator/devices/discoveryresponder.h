#pragma once

#include "simulateddevice.h"

#include <QHash>
#include <QHostAddress>
#include <QObject>
#include <QStringList>
#include <QTimer>

class QUdpSocket;

/// Answers discovery queries on UDP port 54330 for all devices, each from its own address. A query
/// to the address of one network port is answered by that port alone.
class DiscoveryResponder : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 port = 54330;

    /// Hears queries at `listenAddress`. The devices stay the caller's and must outlive the
    /// responder.
    DiscoveryResponder(const QList<SimulatedDevice*>& devices, const QString& listenAddress,
                       QObject* parent = nullptr);

    /// Binds all sockets; on failure false with `error` in plain words.
    bool start(QString* error);

    /// Queries heard so far.
    int queryCount() const { return m_queries; }
    /// In what queries differed from the prescribed form.
    const QStringList& differences() const { return m_differences; }

Q_SIGNALS:
    /// A query was heard; the replies are on their way.
    void queryHeard(const QString& sender);
    /// A query differed from the prescribed form.
    void differenceFound(const QString& sender, const QString& text);

private Q_SLOTS:
    void readQueries();
    void sendSome();

private:
    struct Reply
    {
        QUdpSocket* socket;
        QByteArray datagram;
        QHostAddress receiver;
    };

    bool bind(const QString& address, QString* error);
    void hear(const QByteArray& query, const QHostAddress& sender, const QString& receiver);
    void answer(const QHostAddress& sender, const QString& onlyPort);

    QList<SimulatedDevice*> m_devices;
    QString m_listenAddress;
    QHash<QString, QUdpSocket*> m_sockets;
    QList<Reply> m_replies;
    QTimer m_pace;
    QStringList m_differences;
    int m_queries = 0;
};
