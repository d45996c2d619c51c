#include "simulateddevice.h"

#include "devicelistener.h"
#include "redaction.h"
#include "textconnection.h"

#include <QTimer>
#include <algorithm>

namespace {

constexpr int retryMs = 500;

bool holds(const QList<Fault>& faults, FaultKind kind)
{
    return std::any_of(faults.begin(), faults.end(),
                       [kind](const Fault& fault) { return fault.kind == kind; });
}

} // namespace

SimulatedDevice::SimulatedDevice(const DeviceDescription& description, QObject* parent)
    : QObject(parent)
    , m_description(description)
    , m_commands(description)
{
    addNetworkPort({description.address, description.mac});
    addTcpPort(textPort, FaultKind::RefuseText, SLOT(takeTextConnection(QTcpSocket*)));
}

bool SimulatedDevice::start(QString* error)
{
    makeListeners();
    m_isRunning = openListeners(error);
    if (!m_isRunning) {
        closeListeners();
    }
    return m_isRunning;
}

void SimulatedDevice::stop()
{
    m_isRunning = false;
    closeListeners();
    dropConnections();
}

void SimulatedDevice::setFault(const Fault& fault)
{
    m_faults.add(fault);
    applyRefusals();
}

void SimulatedDevice::clearFaults()
{
    m_faults.clear();
    applyRefusals();
}

QList<QByteArray> SimulatedDevice::discoveryReplies(const NetworkPort& port, QueryWay way)
{
    if (m_isDeaf) {
        return {};
    }
    return planDatagrams(discoveryReply(m_description, port.address, port.mac), way,
                         m_faults.take(Exchange::Discovery));
}

void SimulatedDevice::addNetworkPort(const NetworkPort& port)
{
    m_networkPorts.append(port);
}

void SimulatedDevice::addTcpPort(quint16 port, FaultKind refusal, const char* slot)
{
    m_tcpPortKinds.append({port, refusal, slot});
}

void SimulatedDevice::record(const JournalEntry& entry)
{
    const JournalEntry& recorded = m_journal.add(entry);
    for (const QString& line : reportLines(recorded)) {
        Q_EMIT differenceFound(address(), line);
    }
    if (!recorded.differences.isEmpty()) {
        Q_EMIT changed(address());
    }
}

void SimulatedDevice::goDeaf(int ms)
{
    m_isDeaf = true;
    closeListeners();
    dropConnections();
    QTimer::singleShot(ms, this, SLOT(hearAgain()));
}

void SimulatedDevice::dropConnections()
{
    for (TextConnection* connection : findChildren<TextConnection*>()) {
        connection->abort();
    }
}

void SimulatedDevice::takeTextConnection(QTcpSocket* socket)
{
    const TextConnection::Faults faults{m_faults.take(FaultKind::Greeting),
                                        m_faults.take(FaultKind::GreetingWithAnswer),
                                        m_faults.take(FaultKind::StopAfter)};
    auto* connection = new TextConnection(
        socket, [this](const QByteArray& line) { return answerLine(line); }, faults, this);
    connect(connection, SIGNAL(lineBroken(QString)), this, SLOT(recordBrokenLine(QString)));
}

void SimulatedDevice::recordBrokenLine(const QString& difference)
{
    record({0, exchangeName(Exchange::UnknownCommand), {}, {difference}});
}

void SimulatedDevice::hearAgain()
{
    m_isDeaf = false;
    // A system may hold a port back for a moment after its last connection has gone.
    if (!applyRefusals()) {
        QTimer::singleShot(retryMs, this, SLOT(hearAgain()));
    }
}

void SimulatedDevice::makeListeners()
{
    if (!m_tcpPorts.isEmpty()) {
        return;
    }
    for (const NetworkPort& networkPort : m_networkPorts) {
        for (const TcpPortKind& kind : m_tcpPortKinds) {
            auto* listener = new DeviceListener(networkPort.address, kind.port, this);
            connect(listener, SIGNAL(accepted(QTcpSocket*)), this, kind.slot);
            m_tcpPorts.append({listener, kind.refusal});
        }
    }
}

bool SimulatedDevice::openListeners(QString* error)
{
    for (const TcpPort& port : m_tcpPorts) {
        if (!m_faults.holds(port.refusal) && !port.listener->open(error)) {
            return false;
        }
    }
    return true;
}

void SimulatedDevice::closeListeners()
{
    for (const TcpPort& port : m_tcpPorts) {
        port.listener->close();
    }
}

bool SimulatedDevice::applyRefusals()
{
    if (!m_isRunning || m_isDeaf) {
        return true;
    }
    for (const TcpPort& port : m_tcpPorts) {
        if (m_faults.holds(port.refusal)) {
            port.listener->close();
        }
    }
    QString error;
    const bool isOpen = openListeners(&error);
    if (!isOpen) {
        Q_EMIT noticed(address(), error);
    }
    return isOpen;
}

bool SimulatedDevice::refuses(const QByteArray& line) const
{
    const std::optional<int> number = TextCommands::recallNumber(line);
    return number && !hasPreset(*number);
}

TextAnswer SimulatedDevice::carryOut(const QByteArray& line, const QList<Fault>& faults)
{
    const bool isPrevented =
        holds(faults, FaultKind::ErrorAnswer) || holds(faults, FaultKind::NoAnswer);
    if (isPrevented || refuses(line)) {
        return {TextCommands::exchangeOf(line), errorAnswer(line), {}};
    }
    if (holds(faults, FaultKind::NoEffect)) {
        TextCommands pretended = m_commands;
        return pretended.answer(line);
    }
    return m_commands.answer(line);
}

void SimulatedDevice::tell(const JournalEntry& entry, const TextAnswer& answer)
{
    record(entry);
    if (answer.exchange == Exchange::IdentifyCommand ||
        answer.exchange == Exchange::RecallCommand) {
        const bool isRefused = answer.answer.startsWith("ERROR");
        Q_EMIT noticed(address(),
                       isRefused ? entry.text + QStringLiteral(": refused") : entry.text);
        Q_EMIT changed(address());
    }
    Q_EMIT commandHandled(address(), entry.text);
}

Delivery SimulatedDevice::answerLine(const QByteArray& line)
{
    const QList<Fault> faults = m_faults.take(TextCommands::exchangeOf(line));
    const TextAnswer answer = carryOut(line, faults);
    JournalEntry entry{0, exchangeName(answer.exchange), redacted(line), {}};
    if (answer.exchange == Exchange::UnknownCommand) {
        entry.differences.append(QStringLiteral("unknown command \"%1\"").arg(entry.text));
    }
    tell(entry, answer);
    return planAnswer(answer, faults);
}
