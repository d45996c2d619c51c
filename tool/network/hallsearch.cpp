#include "hallsearch.h"

#include "deviceclass.h"
#include "deviceinforeceiver.h"

#include <algorithm>

namespace {

// The search itself waits a second for a hub's other port; its end must not cut that short.
constexpr int otherPortMs = 1200;

} // namespace

HallSearch::HallSearch(int interfaceIndex, int waitMs, const QStringList& probes, QObject* parent)
    : QObject(parent)
    , m_detector(nullptr, interfaceIndex)
    , m_waitMs(waitMs)
    , m_probes(probes)
{
    connect(&m_detector, SIGNAL(deviceAnswered(QString)), this, SLOT(noteAnswer(QString)));
    connect(&m_detector, SIGNAL(deviceIdentified(QString)), this, SLOT(noteIdentity(QString)));
    connect(&m_detector, SIGNAL(deviceDetected(QString)), this, SLOT(noteAnnouncement(QString)));
}

bool HallSearch::start()
{
    m_detector.detect();
    if (!m_detector.isListening()) {
        return false;
    }
    QTimer::singleShot(m_waitMs, this, SLOT(endBroadcast()));
    return true;
}

QList<JudgedDevice> HallSearch::devices() const
{
    return judged(seen());
}

QList<Probe> HallSearch::probes() const
{
    QList<Probe> probes;
    for (const QString& address : m_probes) {
        Probe probe{address, resultOf(address)};
        if (probe.result == ProbeResult::TextOnly) {
            const DeviceInfoReceiver* text = m_texts.value(address);
            probe.deviceId = text->deviceId();
            probe.label = text->deviceName();
            probe.version = text->version();
            probe.serialNumber = text->serialNumber();
            probe.currentPreset = text->currentPreset();
        }
        probes.append(probe);
    }
    return probes;
}

void HallSearch::noteAnswer(const QString& ipText)
{
    m_answered.append(ipText);
}

void HallSearch::noteIdentity(const QString& ipText)
{
    m_identified.insert(ipText);
}

void HallSearch::noteAnnouncement(const QString& ipText)
{
    m_announced.insert(ipText);
}

void HallSearch::noteText()
{
    m_toldByText.insert(m_texts.key(qobject_cast<DeviceInfoReceiver*>(sender())));
}

void HallSearch::noteRefusal()
{
    m_refused.insert(m_texts.key(qobject_cast<DeviceInfoReceiver*>(sender())));
}

void HallSearch::endBroadcast()
{
    m_byBroadcast = QSet<QString>(m_answered.begin(), m_answered.end());
    for (const QString& address : m_probes) {
        if (!m_byBroadcast.contains(address)) {
            probe(address);
        }
    }
    if (m_texts.isEmpty()) {
        waitForHubs();
    } else {
        QTimer::singleShot(m_waitMs, this, SLOT(waitForHubs()));
    }
}

void HallSearch::waitForHubs()
{
    const QList<SeenDevice> all = seen();
    const bool isOneUndecided = std::any_of(
        all.begin(), all.end(), [this](const SeenDevice& device) { return isUndecided(device); });
    QTimer::singleShot(isOneUndecided ? otherPortMs : 0, this, SIGNAL(finished()));
}

QList<SeenDevice> HallSearch::seen() const
{
    QList<SeenDevice> all;
    for (const QString& address : m_answered) {
        all.append({m_detector.deviceInfo(address), m_identified.contains(address),
                    m_announced.contains(address), !m_texts.contains(address)});
    }
    return all;
}

bool HallSearch::isUndecided(const SeenDevice& device) const
{
    const QString serial = device.record.serialNumber;
    return device.isIdentified &&
           std::none_of(m_announced.begin(), m_announced.end(), [&](const QString& address) {
               return m_detector.deviceInfo(address).serialNumber == serial;
           });
}

void HallSearch::probe(const QString& address)
{
    auto* const text = new DeviceInfoReceiver(QHostAddress(address), this);
    m_texts.insert(address, text);
    connect(text, SIGNAL(deviceInfoReceived()), this, SLOT(noteText()));
    connect(text, SIGNAL(connectionRefused()), this, SLOT(noteRefusal()));
    text->start();
    m_detector.ask(address);
}

ProbeResult HallSearch::resultOf(const QString& address) const
{
    if (m_byBroadcast.contains(address)) {
        return ProbeResult::Answers;
    }
    if (m_answered.contains(address)) {
        return ProbeResult::DirectOnly;
    }
    if (m_toldByText.contains(address)) {
        return ProbeResult::TextOnly;
    }
    return m_refused.contains(address) ? ProbeResult::RefusesText : ProbeResult::Silent;
}
