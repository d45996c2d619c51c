#include "absentdevices.h"

#include "foreignaddress.h"

namespace {

DeviceRecords takenAmong(const QList<JudgedDevice>& found)
{
    DeviceRecords taken;
    for (const JudgedDevice& device : found) {
        if (device.verdict == Verdict::Taken) {
            DeviceData there;
            there.ipAddress = device.record.ipAddress;
            there.modelName = device.record.modelName;
            there.macAddress = device.record.macAddress;
            taken.append(there);
        }
    }
    return taken;
}

QString reasonAtAddress(const DeviceData& device, const JudgedDevice& there)
{
    if (there.verdict != Verdict::Taken) {
        return verdictWords(there);
    }
    return there.record.modelName != device.modelName
               ? QStringLiteral("another model answers there: %1").arg(there.record.modelName)
               : QStringLiteral("a device with another MAC address answers there: %1")
                     .arg(there.record.macAddress);
}

QString silenceOf(const QString& address, const QList<NicRow>& sides)
{
    const QString foreign = foreignWords(address, sides);
    const QString silence = QStringLiteral("no answer");
    return foreign.isEmpty() ? silence : silence + QStringLiteral("; ") + foreign;
}

QString reasonOf(const DeviceData& device, const QList<JudgedDevice>& found,
                 const QList<NicRow>& sides)
{
    QString reason = silenceOf(device.ipAddress, sides);
    for (const JudgedDevice& other : found) {
        if (other.record.ipAddress == device.ipAddress) {
            return reasonAtAddress(device, other);
        }
        if (other.verdict == Verdict::Taken && other.record.macAddress == device.macAddress) {
            reason = QStringLiteral("no answer there; it has the address %1 now")
                         .arg(other.record.ipAddress);
        }
    }
    return reason;
}

} // namespace

QList<AbsentDevice> absentDevices(const DocumentData& hall, const QList<JudgedDevice>& found,
                                  const QList<NicRow>& sides)
{
    DeviceRecords taken = takenAmong(found);
    QList<AbsentDevice> absent;
    for (const DeviceData& device : hall.devices.all()) {
        const bool isThere =
            taken.find(device.ipAddress, device.macAddress, device.modelName) != nullptr;
        if (device.roomNumber != 0 && !isThere) {
            absent.append({device, reasonOf(device, found, sides)});
        }
    }
    return absent;
}
