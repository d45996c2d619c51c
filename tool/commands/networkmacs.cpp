#include "networkmacs.h"

#include "devicetexts.h"

namespace {

/// What is wrong with a device that has answered; empty when nothing is.
QString faultOf(const DeviceData& device, const JudgedDevice& answer)
{
    const DetectedDevice& told = answer.record;
    if (answer.verdict != Verdict::Taken) {
        return verdictWords(answer);
    }
    if (told.modelName != device.modelName) {
        return QStringLiteral("it tells that it is a %1, not a %2")
            .arg(told.modelName, device.modelName);
    }
    const bool isSameMac = told.macAddress.compare(device.macAddress, Qt::CaseInsensitive) == 0;
    return isSameMac || device.macAddress.isEmpty()
               ? QString()
               : QStringLiteral("it tells the MAC address %1, not %2")
                     .arg(told.macAddress, device.macAddress);
}

} // namespace

QStringList addressesWithoutMac(const DocumentData& hall)
{
    QStringList addresses;
    for (const DeviceData& device : hall.devices.all()) {
        if (device.macAddress.isEmpty() && isDeviceAddress(device.ipAddress)) {
            addresses.append(device.ipAddress);
        }
    }
    addresses.removeDuplicates();
    return addresses;
}

QStringList takeMacs(DocumentData& hall, const QList<JudgedDevice>& answers)
{
    QStringList faults;
    for (const JudgedDevice& answer : answers) {
        DeviceData* device = hall.devices.find(answer.record.ipAddress);
        if (device == nullptr) {
            continue;
        }
        const QString fault = faultOf(*device, answer);
        if (!fault.isEmpty()) {
            faults.append(QStringLiteral("device %1: %2").arg(device->ipAddress, fault));
        } else if (device->macAddress.isEmpty()) {
            device->macAddress = answer.record.macAddress;
        }
    }
    return faults;
}
