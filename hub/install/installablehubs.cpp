#include "installablehubs.h"

#include "deviceclass.h"

QList<DeviceEntry> installableHubs(IDocAccessor& doc)
{
    QList<DeviceEntry> hubs;
    const int devices = deviceCount(doc);
    for (int index = 0; index < devices; ++index) {
        const std::optional<DeviceEntry> device = deviceAt(doc, index);
        if (device && isHub(device->modelName) && device->roomNumber != 0) {
            hubs.append(*device);
        }
    }
    return hubs;
}
