#include "draftcompletion.h"

#include "devicetexts.h"
#include "foreignaddress.h"

#include <algorithm>

namespace {

/// What is wrong with a device that has answered; empty when nothing is.
QString faultOf(const DeviceData& device, const JudgedDevice& answer)
{
    const DetectedDevice& told = answer.record;
    if (!isFit(answer)) {
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

QString silenceWords(const DeviceData& device, const InterfaceChoice& side)
{
    const QString lack = device.macAddress.isEmpty()
                             ? QStringLiteral("it did not answer, and its MAC address is missing")
                             : QStringLiteral("it did not answer");
    const QString foreign = foreignWords(device.ipAddress, {*side.row});
    return foreign.isEmpty() ? lack : lack + QStringLiteral("; ") + foreign;
}

bool isShowable(const QString& label)
{
    return !label.isEmpty() && std::none_of(label.begin(), label.end(), [](QChar letter) {
        return letter.category() == QChar::Other_Control;
    });
}

void take(DeviceData& device, const DetectedDevice& told)
{
    if (device.macAddress.isEmpty()) {
        device.macAddress = told.macAddress;
    }
    const bool isNamed = device.labelModified || device.label != device.ipAddress;
    if (!isNamed && isShowable(told.deviceName)) {
        device.label = told.deviceName;
    }
}

void complete(DeviceData& device, const SearchResult& search, DraftCompletion& completion)
{
    const JudgedDevice* answer = answerFrom(device.ipAddress, search.devices);
    const QString fault =
        answer != nullptr ? faultOf(device, *answer) : silenceWords(device, search.side);
    const QString line = QStringLiteral("device %1: %2").arg(device.ipAddress, fault);
    if (answer != nullptr && fault.isEmpty()) {
        take(device, answer->record);
    } else if (answer == nullptr && !device.macAddress.isEmpty()) {
        completion.notes.append(line);
    } else {
        completion.faults.append(line);
        completion.named.append(device.ipAddress);
    }
}

} // namespace

QStringList addressesToAsk(const DocumentData& hall)
{
    QStringList addresses;
    for (const DeviceData& device : hall.devices.all()) {
        if (isDeviceAddress(device.ipAddress)) {
            addresses.append(device.ipAddress);
        }
    }
    addresses.removeDuplicates();
    return addresses;
}

DraftCompletion completeDraft(DocumentData& hall, const SearchResult& search)
{
    DraftCompletion completion;
    for (const QString& address : addressesToAsk(hall)) {
        if (DeviceData* device = hall.devices.find(address)) {
            complete(*device, search, completion);
        }
    }
    return completion;
}
