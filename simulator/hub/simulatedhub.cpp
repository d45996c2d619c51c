#include "simulatedhub.h"

#include "hubconnection.h"
#include "redaction.h"
#include "requestcheck.h"

#include <QTimer>
#include <utility>

namespace {

JournalEntry journalEntry(const HubRequest& request, const QStringList& differences)
{
    return {0, exchangeName(request.exchange), redacted(request.method() + ' ' + request.target()),
            differences};
}

} // namespace

SimulatedHub::SimulatedHub(const HubDescription& description, QObject* parent)
    : SimulatedDevice(description, parent)
    , m_hubDescription(description)
    , m_state(description)
{
    if (!description.secondAddress.isEmpty()) {
        addNetworkPort({description.secondAddress, description.secondMac});
    }
    addTcpPort(httpPort, FaultKind::RefuseHttp, SLOT(takeHttpConnection(QTcpSocket*)));
}

int SimulatedHub::identifyCount() const
{
    return SimulatedDevice::identifyCount() + m_state.identificationCount();
}

void SimulatedHub::reboot(int deafMs)
{
    m_state.reboot();
    Q_EMIT noticed(address(), QStringLiteral("reboots, deaf for %1 ms").arg(deafMs));
    goDeaf(deafMs);
}

bool SimulatedHub::hasPreset(int number) const
{
    return m_state.presets().contains(number);
}

void SimulatedHub::dropConnections()
{
    SimulatedDevice::dropConnections();
    for (HubConnection* connection : findChildren<HubConnection*>()) {
        connection->abort();
    }
}

void SimulatedHub::takeHttpConnection(QTcpSocket* socket)
{
    auto* connection = new HubConnection(
        socket,
        [this](const RequestReading& reading, const QString& reachedAt) {
            return answerReading(reading, reachedAt);
        },
        this);
    connect(connection, SIGNAL(rebootAsked(int)), this, SLOT(rebootSoon(int)));
    connect(connection, SIGNAL(endedInside(QByteArray)), this, SLOT(recordUnfinished(QByteArray)));
}

void SimulatedHub::rebootSoon(int deafMs)
{
    // The connection that asked for it must be through with its work before it is dropped.
    QTimer::singleShot(0, this, [this, deafMs] { reboot(deafMs); });
}

void SimulatedHub::recordUnfinished(const QByteArray& bytes)
{
    RequestReading reading = readRequest(bytes);
    routeRequest(reading.request, m_hubDescription.storageName());
    // A whole request whose turn did not come is as it should be.
    if (reading.verdict == RequestReading::Verdict::Incomplete) {
        const QString difference = QStringLiteral("connection ended inside a request: %1 bytes of "
                                                  "an unfinished request");
        record(journalEntry(reading.request, {difference.arg(bytes.size())}));
    }
}

ReplyPlan SimulatedHub::answerReading(const RequestReading& reading, const QString& reachedAt)
{
    if (reading.verdict == RequestReading::Verdict::Complete) {
        return answerRequest(reading.request, reachedAt);
    }
    record({0, exchangeName(Exchange::UnknownRequest), {}, {reading.problem}});
    Q_EMIT requestHandled(address(), exchangeName(Exchange::UnknownRequest));
    ReplyPlan plan = planReply(HubReply::error(400, reading.problem), {});
    plan.delivery.closeAfter = true;
    return plan;
}

ReplyPlan SimulatedHub::answerRequest(HubRequest request, const QString& reachedAt)
{
    routeRequest(request, m_hubDescription.storageName());
    const QList<Fault> planned = faults().take(request.exchange);
    const HubReply reply = carryOut(request, planned);
    record(journalEntry(request, requestDifferences(request, reachedAt)));
    report(request, reply, planned);
    return planReply(reply, planned);
}

HubReply SimulatedHub::carryOut(const HubRequest& request, const QList<Fault>& faults)
{
    if (preventsAction(faults)) {
        HubReply refusal = HubReply::error(500, QStringLiteral("out of order"));
        refusal.note.clear();
        return refusal;
    }
    HubReply reply = m_state.handle(request);
    if (request.exchange == Exchange::Recall && reply.status == 200) {
        setCurrentPreset(m_state.recalledPreset());
    }
    return reply;
}

void SimulatedHub::report(const HubRequest& request, const HubReply& reply,
                          const QList<Fault>& faults)
{
    const QString name = exchangeName(request.exchange);
    for (const Fault& fault : faults) {
        Q_EMIT noticed(address(),
                       QStringLiteral("%1: fault %2").arg(name, faultKindName(fault.kind)));
    }
    if (!reply.note.isEmpty()) {
        Q_EMIT noticed(address(), redacted(reply.note.toUtf8()));
    }
    Q_EMIT changed(address());
    Q_EMIT requestHandled(address(), name);
}
