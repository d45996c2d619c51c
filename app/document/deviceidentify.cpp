#include "deviceidentify.h"

#include "httpidentify.h"
#include "identifysender.h"
#include "records.h"

#include <QHostAddress>

namespace {

constexpr int identifyNumber = 5;

void identifyByHttp(DeviceData& device, QObject* owner)
{
    if (device.httpIdentify == nullptr) {
        device.httpIdentify = new HttpIdentify(device.ipAddress, device.password, owner);
    }
    device.httpIdentify->start();
}

void identifyByCommand(DeviceData& device, QObject* owner)
{
    if (device.identifySender == nullptr) {
        device.identifySender = new IdentifySender(QHostAddress(device.ipAddress), owner);
    }
    device.identifySender->identify(identifyNumber);
}

} // namespace

void startIdentify(DeviceData& device, QObject* owner)
{
    if (device.searchType == u"HTTP") {
        identifyByHttp(device, owner);
    } else {
        identifyByCommand(device, owner);
    }
}

void deleteIdentifiers(const DeviceData& device)
{
    delete device.identifySender;
    delete device.httpIdentify;
}
