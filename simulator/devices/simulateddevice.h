#pragma once

#include "discoveryreply.h"
#include "faultplan.h"
#include "halldescription.h"
#include "journal.h"
#include "textcommands.h"

#include <QObject>

class DeviceListener;
class QTcpSocket;

/// One network port of a device.
struct NetworkPort
{
    QString address = {};
    QString mac = {};
};

/// A device of the hall: answers text commands on TCP port 49280 of its addresses.
class SimulatedDevice : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 textPort = 49280;

    explicit SimulatedDevice(const DeviceDescription& description, QObject* parent = nullptr);

    /// Listens on all ports; on failure false with `error` in plain words, and nothing listens.
    bool start(QString* error);
    /// Drops all connections and stops listening. What the device holds stays.
    void stop();

    /// The address that names the device.
    QString address() const { return m_description.address; }
    const DeviceDescription& description() const { return m_description; }
    const QList<NetworkPort>& networkPorts() const { return m_networkPorts; }

    /// How often the device was asked to show itself, on whatever way.
    virtual int identifyCount() const { return m_commands.identifyCount(); }
    /// The active preset; 0: none.
    int currentPreset() const { return m_commands.currentPreset(); }

    /// Everything received so far.
    const QList<JournalEntry>& journal() const { return m_journal.entries(); }
    /// The names of the exchanges received so far (see exchangeName()).
    QStringList exchangeNames() const { return m_journal.names(); }
    /// Every difference from the prescribed forms so far, as readable texts; empty is good.
    QStringList differences() const { return m_journal.differences(); }
    /// Forgets journal and differences.
    void clearJournal() { m_journal.clear(); }

    /// Adds a fault; takes effect from the next message on. Its address is not looked at.
    void setFault(const Fault& fault);
    /// From the next message on everything goes well.
    void clearFaults();

    /// The datagrams with which the device answers a discovery query on one of its ports now.
    QList<QByteArray> discoveryReplies(const NetworkPort& port, QueryWay way);

Q_SIGNALS:
    /// An HTTP request was answered; `name` as in exchangeName().
    void requestHandled(const QString& address, const QString& name);
    /// A text command was answered.
    void commandHandled(const QString& address, const QString& line);
    /// A message differed from the prescribed form.
    void differenceFound(const QString& address, const QString& text);
    /// Something happened that a person who watches the hall wants to know.
    void noticed(const QString& address, const QString& text);
    /// What the device holds has changed.
    void changed(const QString& address);

protected:
    /// Another network port of the same device; before start() only.
    void addNetworkPort(const NetworkPort& port);
    /// Another TCP port, the same on every network port; `slot` takes its connections.
    void addTcpPort(quint16 port, FaultKind refusal, const char* slot);

    FaultPlan& faults() { return m_faults; }
    void setCurrentPreset(int number) { m_commands.setCurrentPreset(number); }
    /// Puts a message into the journal and reports its differences.
    void record(const JournalEntry& entry);
    /// Drops all connections and refuses new ones for so many ms.
    void goDeaf(int ms);
    /// True when the device can recall this preset. A peripheral keeps none: it follows every
    /// number that it is told.
    virtual bool hasPreset(int /*number*/) const { return true; }
    /// Drops every connection at once.
    virtual void dropConnections();

private Q_SLOTS:
    void takeTextConnection(QTcpSocket* socket);
    void recordBrokenLine(const QString& difference);
    void hearAgain();

private:
    struct TcpPort
    {
        DeviceListener* listener;
        FaultKind refusal;
    };
    struct TcpPortKind
    {
        quint16 port;
        FaultKind refusal;
        const char* slot;
    };

    void makeListeners();
    bool openListeners(QString* error);
    void closeListeners();
    /// Listens where no fault forbids it; false when the system does.
    bool applyRefusals();
    bool refuses(const QByteArray& line) const;
    TextAnswer carryOut(const QByteArray& line, const QList<Fault>& faults);
    void tell(const JournalEntry& entry, const TextAnswer& answer);
    Delivery answerLine(const QByteArray& line);

    DeviceDescription m_description;
    QList<NetworkPort> m_networkPorts;
    QList<TcpPortKind> m_tcpPortKinds;
    QList<TcpPort> m_tcpPorts;
    TextCommands m_commands;
    FaultPlan m_faults;
    Journal m_journal;
    bool m_isRunning = false;
    bool m_isDeaf = false;
};
