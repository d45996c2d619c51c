#include "deviceclass.h"

bool isHub(QStringView model)
{
    return model.startsWith(u"PX-HB");
}

DeviceClass deviceClass(QStringView model)
{
    if (isHub(model)) {
        return DeviceClass::Hub;
    }
    // The wireless access point carries microphones and is counted as one.
    if (model.startsWith(u"PX-DL") || model.startsWith(u"PX-BK") || model.startsWith(u"PX-NDE")) {
        return DeviceClass::Microphone;
    }
    if (model == u"LQA4-08S" || model == u"DSK4M") {
        return DeviceClass::Speaker;
    }
    if (model == u"PNB-QE7") {
        return DeviceClass::Controller;
    }
    return DeviceClass::Other;
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
