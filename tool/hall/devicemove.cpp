#include "devicemove.h"

#include <utility>

namespace {

DeviceRecords moved(const DeviceRecords& devices, const QString& address, const QString& newAddress)
{
    DeviceRecords records;
    for (DeviceData device : devices.all()) {
        device.ipAddress = device.ipAddress == address ? newAddress : device.ipAddress;
        records.append(std::move(device));
    }
    return records;
}

DeviceSetRecords moved(const DeviceSetRecords& sets, const QString& address,
                       const QString& newAddress)
{
    DeviceSetRecords records;
    for (DeviceSetInfo record : sets.all()) {
        if (record.ipAddress == newAddress) {
            continue;
        }
        record.ipAddress = record.ipAddress == address ? newAddress : record.ipAddress;
        records.append(record);
    }
    return records;
}

} // namespace

void moveDevice(DocumentData& hall, const QString& address, const QString& newAddress)
{
    if (address == newAddress) {
        return;
    }
    hall.devices = moved(hall.devices, address, newAddress);
    hall.deviceSets = moved(hall.deviceSets, address, newAddress);
}
