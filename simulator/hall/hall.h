#pragma once

#include "discoveryresponder.h"
#include "halldescription.h"
#include "simulatedhub.h"

#include <QHash>
#include <QObject>
#include <memory>

/// A whole simulated hall: real sockets on the addresses of its devices, served by the event loop
/// of the thread that made it. A hall and the program under test can share one process.
///
///     const auto description = HallDescription::byCounts(4, 20, QStringLiteral("127.10.0.1"));
///     Hall hall(*description);
///     QString error;
///     QVERIFY2(hall.start(&error), qPrintable(error));
///     hall.hub(QStringLiteral("127.10.0.1"))->setFault({.exchange = Exchange::Recall,
///                                                       .kind = FaultKind::Silence});
class Hall : public QObject
{
    Q_OBJECT

public:
    explicit Hall(const HallDescription& description, QObject* parent = nullptr);
    ~Hall() override;

    /// Opens all sockets. On failure false with `error` in plain words, and nothing is open.
    bool start(QString* error);
    /// Closes all sockets and drops all connections; what the devices hold stays.
    void stop();

    const HallDescription& description() const { return m_description; }

    /// The hub at this address, by its first or its second; null when there is none.
    SimulatedHub* hub(const QString& address) const;
    /// The device at this address, hubs included; null when there is none.
    SimulatedDevice* device(const QString& address) const;
    /// All hubs in the order of the description.
    QList<SimulatedHub*> hubs() const { return m_hubs; }
    /// All devices, hubs first, in the order of the description.
    QList<SimulatedDevice*> devices() const { return m_devices; }

    /// Discovery queries heard so far.
    int queryCount() const;

    /// Every difference from the prescribed forms that any device met, with the device's address;
    /// empty is good.
    QStringList differences() const;

    /// Adds a fault to the device at its address, or to every device when it names none. False
    /// when the hall has no such device.
    bool setFault(const Fault& fault);
    /// From the next message on everything goes well everywhere.
    void clearFaults();

Q_SIGNALS:
    /// A hub answered an HTTP request; `name` as in exchangeName().
    void requestHandled(const QString& address, const QString& name);
    /// A device answered a text command.
    void commandHandled(const QString& address, const QString& line);
    /// A discovery query was heard.
    void queryHeard(const QString& sender);
    /// A message to a device (or, with the sender's address, a query) differed from its form.
    void differenceFound(const QString& address, const QString& text);
    /// Something happened that a person who watches the hall wants to know.
    void noticed(const QString& address, const QString& text);
    /// What the device holds has changed.
    void changed(const QString& address);

private:
    void addDevice(SimulatedDevice* device);
    bool startDevices(QString* error);
    bool startDiscovery(QString* error);

    HallDescription m_description;
    QList<SimulatedHub*> m_hubs;
    QList<SimulatedDevice*> m_devices;
    QHash<QString, SimulatedDevice*> m_byAddress;
    std::unique_ptr<DiscoveryResponder> m_responder;
    /// What responders heard and found before the hall was stopped.
    int m_queryCount = 0;
    QStringList m_queryDifferences;
};
