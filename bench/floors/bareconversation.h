#pragma once

#include <QList>
#include <QTcpSocket>

/// A bare socket that sends prepared messages one after the other, each once something has come
/// back for the one before, and looks at nothing.
class BareConversation : public QObject
{
    Q_OBJECT

public:
    BareConversation(const QString& address, quint16 port, const QList<QByteArray>& messages);

    void connectToPeer() { m_socket.connectToHost(m_address, m_port); }

public Q_SLOTS:
    /// Sends the first message.
    void begin();

Q_SIGNALS:
    void connected();
    void finished();

private Q_SLOTS:
    void answered();

private:
    QString m_address;
    quint16 m_port;
    QList<QByteArray> m_messages;
    qsizetype m_sent = 0;
    QTcpSocket m_socket;
};
