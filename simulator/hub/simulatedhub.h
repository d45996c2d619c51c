#pragma once

#include "hubrequestparser.h"
#include "hubstate.h"
#include "replyplan.h"
#include "simulateddevice.h"

/// A hub of the hall: a device that also has a management interface on TCP port 80.
///
/// Every request is compared byte for byte with what a hub prescribes; differences stand in the
/// journal, and the request is answered as far as it can be understood.
class SimulatedHub : public SimulatedDevice
{
    Q_OBJECT

public:
    static constexpr quint16 httpPort = 80;

    explicit SimulatedHub(const HubDescription& description, QObject* parent = nullptr);

    const HubDescription& hubDescription() const { return m_hubDescription; }

    /// The presets by their numbers, with entries and files.
    const QMap<int, StoredPreset>& presets() const { return m_state.presets(); }
    /// The preset recalled last over HTTP; 0: none.
    int recalledPreset() const { return m_state.recalledPreset(); }
    /// True once the hub has a password.
    bool isInitialised() const { return m_state.isInitialised(); }
    /// Successful log-ins so far.
    int logInCount() const { return m_state.logInCount(); }
    int identifyCount() const override;

    /// Restarts the hub: connections and tokens are gone, it is deaf for so many ms.
    void reboot(int deafMs);

protected:
    /// A hub recalls only what it holds.
    bool hasPreset(int number) const override;
    void dropConnections() override;

private Q_SLOTS:
    void takeHttpConnection(QTcpSocket* socket);
    void rebootSoon(int deafMs);
    void recordUnfinished(const QByteArray& bytes);

private:
    ReplyPlan answerReading(const RequestReading& reading, const QString& reachedAt);
    ReplyPlan answerRequest(HubRequest request, const QString& reachedAt);
    HubReply carryOut(const HubRequest& request, const QList<Fault>& faults);
    void report(const HubRequest& request, const HubReply& reply, const QList<Fault>& faults);

    HubDescription m_hubDescription;
    HubState m_state;
};
