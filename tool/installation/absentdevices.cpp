#include "absentdevices.h"

#include "foreignaddress.h"

#include <algorithm>

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
               : QStringLiteral("a device with another MAC address answers there, %1")
                     .arg(there.record.macAddress);
}

/// Where a device of the hall answers instead; empty when it does nowhere.
QString placeOf(const DeviceData& device, const QList<JudgedDevice>& found)
{
    for (const JudgedDevice& other : found) {
        if (other.verdict == Verdict::Taken && other.record.macAddress == device.macAddress &&
            other.record.ipAddress != device.ipAddress) {
            return other.record.ipAddress;
        }
    }
    return {};
}

QString reasonOf(const DeviceData& device, const QList<JudgedDevice>& found,
                 const QList<NicRow>& sides)
{
    const auto there =
        std::find_if(found.begin(), found.end(), [&device](const JudgedDevice& other) {
            return other.record.ipAddress == device.ipAddress;
        });
    QString reason =
        there != found.end() ? reasonAtAddress(device, *there) : QStringLiteral("no answer there");
    const QString place = placeOf(device, found);
    if (!place.isEmpty()) {
        return QStringLiteral("%1; it has the address %2 now").arg(reason, place);
    }
    if (there != found.end()) {
        return reason;
    }
    const QString foreign = foreignWords(device.ipAddress, sides);
    const QString silence = QStringLiteral("no answer");
    return foreign.isEmpty() ? silence : silence + QStringLiteral("; ") + foreign;
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
