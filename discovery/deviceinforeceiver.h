#pragma once

#include "scpcommandsender.h"

#include <QHash>
#include <QString>

/// Asks one device for its identity: id, name, firmware version, serial number and active preset,
/// one line at a time. Begin with start(); the connection stays open after the last answer.
///
/// The first question is asked twice and the answer to the first asking is dropped: some devices
/// greet on connection, and the greeting is dropped with it. A device that splits its answers or
/// sends two at once yields shifted or empty values; one that stops answering is never reported.
class DeviceInfoReceiver : public SCPCommandSender
{
    Q_OBJECT

public:
    DeviceInfoReceiver(const QHostAddress& hostAddress, QObject* parent);

    /// Begins the exchange; begins it anew when the device has closed the connection.
    void start() override;

    /// The answers, all empty until deviceInfoReceived(), and empty where the device's answer could
    /// not be read.
    const QString& deviceId() const;
    const QString& deviceName() const;
    const QString& version() const;
    const QString& serialNumber() const;
    const QString& currentPreset() const;

Q_SIGNALS:
    /// All five answers are in. Emitted once per exchange.
    void deviceInfoReceived();

protected Q_SLOTS:
    void tcpConnected() override;
    void tcpReadyRead() override;

private:
    void extractAnswers();

    QString m_deviceId;
    QString m_deviceName;
    QString m_version;
    QString m_serialNumber;
    QString m_currentPreset;
    int m_answerCounter;
    QHash<int, QString> m_rawAnswers;
};
