#include "devicejudgement.h"

#include "acceptancerule.h"
#include "devicecatalogue.h"

#include <QHostAddress>

#include <algorithm>

namespace {

bool isSameDevice(const DetectedDevice& one, const DetectedDevice& other)
{
    return one.ipAddress != other.ipAddress && one.serialNumber == other.serialNumber;
}

void judgeFirmware(JudgedDevice& device, bool isReached)
{
    const DeviceModel* model = findModel(device.record.modelName);
    if (isDeviceAccepted(device.record.version, device.record.modelName)) {
        device.verdict = isReached ? Verdict::Taken : Verdict::DirectOnly;
    } else if (model == nullptr) {
        device.verdict = Verdict::UnknownModel;
    } else {
        device.verdict = Verdict::FirmwareTooOld;
        device.neededFirmware = model->minFirmware.toString();
    }
}

/// A hub that told its identity and was not announced under this address. One that has no twin told
/// it so late that the search still waits for a second port.
void findOtherPort(JudgedDevice& device, const QList<SeenDevice>& devices)
{
    device.verdict = Verdict::SameMac;
    for (const SeenDevice& other : devices) {
        if (!other.isIdentified || !isSameDevice(device.record, other.record)) {
            continue;
        }
        device.otherAddress = other.record.ipAddress;
        if (other.isAnnounced) {
            device.verdict = Verdict::SecondPort;
            return;
        }
    }
}

JudgedDevice judgedAmong(const SeenDevice& seen, const QList<SeenDevice>& devices)
{
    JudgedDevice device{seen.record};
    if (seen.isAnnounced) {
        judgeFirmware(device, seen.isReached);
    } else if (seen.isIdentified) {
        findOtherPort(device, devices);
        if (device.otherAddress.isEmpty()) {
            judgeFirmware(device, seen.isReached);
        }
    }
    return device;
}

bool isEarlier(const JudgedDevice& one, const JudgedDevice& other)
{
    return QHostAddress(one.record.ipAddress).toIPv4Address() <
           QHostAddress(other.record.ipAddress).toIPv4Address();
}

} // namespace

QList<JudgedDevice> judged(const QList<SeenDevice>& devices)
{
    QList<JudgedDevice> all;
    for (const SeenDevice& seen : devices) {
        all.append(judgedAmong(seen, devices));
    }
    std::sort(all.begin(), all.end(), isEarlier);
    return all;
}

bool isFit(const JudgedDevice& device)
{
    return device.verdict == Verdict::Taken || device.verdict == Verdict::DirectOnly;
}

QString verdictName(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Taken:
        return QStringLiteral("taken");
    case Verdict::FirmwareTooOld:
        return QStringLiteral("firmware-too-old");
    case Verdict::UnknownModel:
        return QStringLiteral("unknown-model");
    case Verdict::SecondPort:
        return QStringLiteral("second-port");
    case Verdict::SameMac:
        return QStringLiteral("same-mac");
    case Verdict::DirectOnly:
        return QStringLiteral("answers-only-directly");
    case Verdict::NoIdentity:
        break;
    }
    return QStringLiteral("no-identity");
}

QString verdictWords(const JudgedDevice& device)
{
    switch (device.verdict) {
    case Verdict::Taken:
        return QStringLiteral("taken");
    case Verdict::FirmwareTooOld:
        return QStringLiteral("firmware too old: has %1, needs %2")
            .arg(device.record.version.isEmpty() ? QStringLiteral("none") : device.record.version,
                 device.neededFirmware);
    case Verdict::UnknownModel:
        return QStringLiteral("unknown model");
    case Verdict::SecondPort:
        return QStringLiteral("second port of the hub at %1").arg(device.otherAddress);
    case Verdict::SameMac:
        return QStringLiteral("serial number and MAC are those of %1 too: neither is taken")
            .arg(device.otherAddress);
    case Verdict::DirectOnly:
        return QStringLiteral("answers only when asked directly: the wizard does not find it");
    case Verdict::NoIdentity:
        break;
    }
    return QStringLiteral("answered the query, but never told its identity");
}
