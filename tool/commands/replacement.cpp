#include "replacement.h"

#include "deviceclass.h"

namespace {

QString className(const QString& model)
{
    switch (deviceClass(model)) {
    case DeviceClass::Hub:
        return QStringLiteral("a hub");
    case DeviceClass::Microphone:
        return QStringLiteral("a microphone");
    case DeviceClass::Speaker:
        return QStringLiteral("a speaker");
    case DeviceClass::Controller:
        return QStringLiteral("a controller");
    case DeviceClass::Other:
        break;
    }
    return QStringLiteral("neither hub nor microphone, speaker or controller");
}

QString kindOf(const QString& model)
{
    return QStringLiteral("%1 (%2)").arg(className(model), model);
}

bool isSameMac(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

/// Why what answers at the new address cannot take the old device's place, behind that address.
QString faultOfAnswer(const DeviceData& old, const ReplacementWish& wish, const JudgedDevice& told)
{
    const DetectedDevice& device = told.record;
    if (!isFit(told)) {
        return verdictWords(told);
    }
    if (!wish.mac.isEmpty() && !isSameMac(wish.mac, device.macAddress)) {
        return QStringLiteral("its MAC address is %1, not %2").arg(device.macAddress, wish.mac);
    }
    if (wish.address == old.ipAddress && isSameMac(device.macAddress, old.macAddress)) {
        return QStringLiteral("the device with the MAC address %1 is there as before")
            .arg(device.macAddress);
    }
    if (deviceClass(device.modelName) != deviceClass(old.modelName)) {
        return QStringLiteral("it is %1, and the device that it is to replace is %2")
            .arg(kindOf(device.modelName), kindOf(old.modelName));
    }
    return {};
}

/// Why a device that did not answer cannot take that place, behind its address.
QString faultOfSilence(const DeviceData& old, const ReplacementWish& wish)
{
    return wish.address == old.ipAddress && isSameMac(wish.mac, old.macAddress)
               ? QStringLiteral("the MAC address %1 is that of the device that is to be replaced")
                     .arg(wish.mac)
               : QString();
}

QString noteOf(const DeviceData& old, const JudgedDevice* told)
{
    if (told == nullptr) {
        return QStringLiteral("it is taken to be a %1, as the device that it replaces")
            .arg(old.modelName);
    }
    return told->record.modelName != old.modelName
               ? QStringLiteral("it is a %1, and the device that it replaces was a %2")
                     .arg(told->record.modelName, old.modelName)
               : QString();
}

void label(DeviceData& device, const DeviceData& old, const ReplacementWish& wish,
           const JudgedDevice* told)
{
    if (!wish.label.isEmpty()) {
        device.label = wish.label;
        device.labelModified = true;
    } else if (!device.labelModified && told != nullptr && !told->record.deviceName.isEmpty()) {
        device.label = told->record.deviceName;
    } else if (device.label == old.ipAddress) {
        device.label = wish.address;
    }
}

} // namespace

Replacement replacementFor(const DeviceData& old, const ReplacementWish& wish,
                           const JudgedDevice* told)
{
    Replacement replacement{told != nullptr ? faultOfAnswer(old, wish, *told)
                                            : faultOfSilence(old, wish),
                            old, noteOf(old, told)};
    DeviceData& device = replacement.device;
    device.ipAddress = wish.address;
    device.macAddress = told != nullptr ? told->record.macAddress : wish.mac;
    device.modelName = told != nullptr ? told->record.modelName : old.modelName;
    label(device, old, wish, told);
    return replacement;
}
