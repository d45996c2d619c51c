#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

class DeviceInfoReceiver;
class QHostAddress;
class QNetworkAddressEntry;
class QUdpSocket;

/// What discovery knows of one device; one record per address found. The texts from the device id
/// to the current preset are empty until the device has told its identity.
struct DetectedDevice
{
    QString nameText;
    QString modelName;
    QString macAddress; // six two-digit groups joined by colons, upper case
    QString ipAddress;
    QString deviceId;
    QString deviceName; // the label that the installer gave the device
    QString version;
    QString serialNumber;
    QString currentPreset;
    QString searchType; // how it was found
    QString password;   // discovery never fills it

    /// The query that asks for the identity, owned by the detector; null in an empty record.
    DeviceInfoReceiver* receiver = nullptr;
};

/// Finds the devices on the segment of one network interface: broadcasts a query, asks every device
/// that replies for its identity, and announces it.
///
/// A hub replies once per network port, with two addresses and one serial number. It is announced
/// once: under the address with the lower MAC when both are known within a second, else under the
/// one that is. Every other device is announced as soon as its identity is known.
///
/// No failure is reported: a port that is taken or an interface without an address finds nothing.
class DeviceDetector : public QObject
{
    Q_OBJECT

public:
    /// The UDP port of queries and replies, on both sides.
    static constexpr quint16 port = 54330;

    /// `networkInterfaceIndex` is the system's index of the interface, 0 for none.
    DeviceDetector(QObject* parent, int networkInterfaceIndex);

    /// Broadcasts one query; replies are taken as they come, also those to earlier queries.
    void detect();

    /// Sends the same query to one address alone, which a broadcast may not reach; the reply is
    /// taken like any other.
    void ask(const QString& ipText);

    /// True once a query could be sent from the port of discovery; false after a query when the
    /// port is taken or the interface has no address.
    bool isListening() const;

    /// A copy of the record of an address; an empty record when the address is unknown.
    DetectedDevice deviceInfo(const QString& ipText) const;

Q_SIGNALS:
    /// A device is known by its identity; its record is ready under this address.
    void deviceDetected(const QString& ipText);

    /// For whoever wants to know why a device is not announced: it has replied to a query, and has
    /// told its identity.
    void deviceAnswered(const QString& ipText);
    void deviceIdentified(const QString& ipText);

protected:
    /// Ends the wait for a hub's second address.
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void packetReceived();
    void deviceInfoReceived();

private:
    struct HubGroup
    {
        QList<DetectedDevice> addresses;
        bool isWaiting = true; // for the second address
    };

    QNetworkAddressEntry localEntry() const;
    void sendQuery(const QNetworkAddressEntry& local, const QHostAddress& receiver);
    void openSocket(const QNetworkAddressEntry& local);
    QList<QByteArray> takeDatagrams();
    void takeReply(const QByteArray& bytes);
    void askIdentity(DetectedDevice device);
    void groupHub(const DetectedDevice& device);
    void reportLowerMac(const HubGroup& group);

    int m_networkInterfaceIndex;
    QUdpSocket* m_socket = nullptr;           // child of the detector, made by the first detect()
    QHash<QString, DetectedDevice> m_devices; // by address; only grows
    QHash<QString, HubGroup> m_hubs;          // by serial number
    QHash<int, QString> m_timers;             // timer id to serial number
};
