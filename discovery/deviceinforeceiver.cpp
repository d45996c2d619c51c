#include "deviceinforeceiver.h"

#include "scpanswer.h"

#include <array>

namespace {

const std::array<QString, 5>& questions()
{
    static const std::array<QString, 5> lines{
        QStringLiteral("devinfo deviceid\n"),    QStringLiteral("devinfo devicename\n"),
        QStringLiteral("devinfo version\n"),     QStringLiteral("devinfo serialno\n"),
        QStringLiteral("sscurrent_ex config\n"),
    };
    return lines;
}

// The answer to the question sent on connection is counted as −1 and dropped.
constexpr int beforeFirstAnswer = -1;

constexpr int answerCount = 5;

} // namespace

DeviceInfoReceiver::DeviceInfoReceiver(const QHostAddress& hostAddress, QObject* parent)
    : SCPCommandSender(hostAddress, parent)
    , m_answerCounter(beforeFirstAnswer)
{
}

void DeviceInfoReceiver::start()
{
    if (isUnconnected()) {
        m_answerCounter = beforeFirstAnswer;
    }
    SCPCommandSender::start();
}

const QString& DeviceInfoReceiver::deviceId() const
{
    return m_deviceId;
}

const QString& DeviceInfoReceiver::deviceName() const
{
    return m_deviceName;
}

const QString& DeviceInfoReceiver::version() const
{
    return m_version;
}

const QString& DeviceInfoReceiver::serialNumber() const
{
    return m_serialNumber;
}

const QString& DeviceInfoReceiver::currentPreset() const
{
    return m_currentPreset;
}

void DeviceInfoReceiver::tcpConnected()
{
    sendCommand(questions().front());
}

void DeviceInfoReceiver::tcpReadyRead()
{
    const QString answer = takeAnswer();
    // What a device says after the last answer is of no use, and a chatty one must not fill memory.
    if (m_answerCounter == answerCount) {
        return;
    }
    m_rawAnswers.insert(m_answerCounter, answer);
    ++m_answerCounter;
    if (m_answerCounter == answerCount) {
        extractAnswers();
        Q_EMIT deviceInfoReceived();
    } else {
        sendCommand(questions().at(size_t(m_answerCounter)));
    }
}

void DeviceInfoReceiver::extractAnswers()
{
    int index = 0;
    for (QString* value : {&m_deviceId, &m_deviceName, &m_version, &m_serialNumber}) {
        *value = ScpAnswer::quotedText(m_rawAnswers.value(index));
        ++index;
    }
    m_currentPreset = ScpAnswer::currentPreset(m_rawAnswers.value(index));
    m_rawAnswers.clear();
}
