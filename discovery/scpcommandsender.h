#pragma once

#include <QHostAddress>
#include <QObject>

class QTcpSocket;

/// Base of every object that speaks to a device's text-command port: it holds the device's address
/// and the connection, and leaves the conversation to the derived class.
///
/// There is no time-out: a device that refuses, closes or stays silent simply never makes the
/// derived class emit anything. Only a refusal is told, to whoever wants to know why.
class SCPCommandSender : public QObject
{
    Q_OBJECT

public:
    /// The TCP port on which every device takes text commands.
    static constexpr quint16 port = 49280;

    SCPCommandSender(const QHostAddress& hostAddress, QObject* parent);
    ~SCPCommandSender() override;

    /// The device's address as given at construction.
    const QHostAddress& hostAddress() const;

    /// Connects to the device; the conversation begins in tcpConnected(). Does nothing while a
    /// connection exists or is being made; connects anew after the device has closed it.
    virtual void start();

Q_SIGNALS:
    /// The device, or what stands at its address, takes no connection to the text-command port.
    void connectionRefused();

protected:
    /// True while commands can be sent at once.
    bool isConnected() const;

    /// True when no connection exists and none is being made.
    bool isUnconnected() const;

    /// Writes the command as UTF-8; it must end in a line feed. Does nothing before the first
    /// start().
    void sendCommand(const QString& command);

    /// Takes everything that has arrived and decodes it as UTF-8. Each arrival counts as one whole
    /// answer, whatever its length.
    QString takeAnswer();

protected Q_SLOTS:
    /// Called each time the connection stands: sends the first command.
    virtual void tcpConnected() = 0;

    /// Called whenever bytes have arrived. The default drops them, so that the answers to commands
    /// nobody listens to do not pile up.
    virtual void tcpReadyRead();

private Q_SLOTS:
    void tcpErrorOccurred();

private:
    void createSocket();

    QHostAddress m_hostAddress;
    QTcpSocket* m_socket = nullptr; // child of the sender, made on first use
};
