#include "deviceclass.h"

DeviceClass deviceClass(QStringView model)
{
    const DeviceModel* known = findModel(model);
    return known != nullptr ? known->deviceClass : DeviceClass::Other;
}

bool isHub(QStringView model)
{
    return deviceClass(model) == DeviceClass::Hub;
}

void DeviceCounts::add(QStringView model)
{
    switch (deviceClass(model)) {
    case DeviceClass::Hub:
        ++hubs;
        break;
    case DeviceClass::Microphone:
        ++microphones;
        break;
    case DeviceClass::Speaker:
        ++speakers;
        break;
    case DeviceClass::Controller:
        ++controllers;
        break;
    case DeviceClass::Other:
        break;
    }
}

bool DeviceCounts::isEmpty() const
{
    return hubs == 0 && microphones == 0 && speakers == 0 && controllers == 0;
}
