#include "presetfiles.h"

#include "devicecatalogue.h"
#include "orderedxml.h"
#include "records.h"

#include <algorithm>

namespace {

constexpr int slotCount = 24;  // peripherals that a hub's file has room for
constexpr int hubNameMode = 0; // whatever its model

QString systemName()
{
    return QStringLiteral("sys.systemname");
}

QString systemNameMode()
{
    return QStringLiteral("sys.systemname-mode");
}

/// The hub's record in this layout; null when it has none or belongs to no set.
const DeviceSetInfo* findHub(const QList<DeviceSetInfo>& sets, const QString& hubAddress, int scene)
{
    const auto hub = std::find_if(sets.cbegin(), sets.cend(), [&](const DeviceSetInfo& record) {
        return record.sceneNumber == scene && record.ipAddress == hubAddress;
    });
    return hub != sets.cend() && hub->deviceSetNumber != 0 ? &*hub : nullptr;
}

/// The other devices of the hub's set, in record order. A removed hub has none.
QList<const DeviceSetInfo*> companions(const QList<DeviceSetInfo>& sets, const DeviceSetInfo& hub)
{
    QList<const DeviceSetInfo*> found;
    if (hub.remove) {
        return found;
    }
    for (const DeviceSetInfo& record : sets) {
        if (record.sceneNumber == hub.sceneNumber &&
            record.deviceSetNumber == hub.deviceSetNumber && !record.remove &&
            record.ipAddress != hub.ipAddress) {
            found.append(&record);
        }
    }
    return found;
}

QStringList slotNames(const QString& prefix)
{
    QStringList names;
    for (int slot = 1; slot <= slotCount; ++slot) {
        names.append(prefix + QString::number(slot));
    }
    return names;
}

void writeSlots(OrderedXml& xml, const QStringList& names, const QStringList& values,
                const QString& unused)
{
    for (int slot = 0; slot < slotCount; ++slot) {
        xml.attribute(names.at(slot), slot < values.size() ? values.at(slot) : unused);
    }
}

void writeMacAddresses(OrderedXml& xml, const QList<const DeviceSetInfo*>& members,
                       const DeviceLookup& deviceAt)
{
    static const QStringList names = slotNames(QStringLiteral("peripheral.mac-addr"));
    QStringList values;
    for (const DeviceSetInfo* member :
         members.first(std::min<qsizetype>(members.size(), slotCount))) {
        const DeviceData* device = deviceAt(member->ipAddress);
        values.append(device != nullptr ? device->macAddress : QString());
    }
    writeSlots(xml, names, values, QStringLiteral("00:00:00:00:00:00"));
}

void writePositions(OrderedXml& xml, const QList<const DeviceSetInfo*>& members)
{
    static const QStringList names = slotNames(QStringLiteral("peripheral.position"));
    const QString left = QStringLiteral("1");
    const QString right = QStringLiteral("2");
    QStringList values;
    for (const DeviceSetInfo* member :
         members.first(std::min<qsizetype>(members.size(), slotCount))) {
        values.append(member->speakerPosition == u"L" ? left : right);
    }
    writeSlots(xml, names, values, left);
}

/// A device keeps the name that it has unless the installer changed it.
void writeName(OrderedXml& xml, const DeviceData* device, int mode)
{
    if (device != nullptr && device->labelModified) {
        xml.attribute(systemName(), device->label);
        xml.attribute(systemNameMode(), QString::number(mode));
    }
}

void open(OrderedXml& xml)
{
    xml.start(QStringLiteral("provisioning"));
    xml.start(QStringLiteral("config"));
}

QByteArray close(OrderedXml& xml)
{
    xml.end();
    xml.end();
    return xml.text().toUtf8();
}

} // namespace

std::optional<BuiltHubFile> buildHubFile(const QList<DeviceSetInfo>& sets,
                                         const DeviceLookup& deviceAt, const QString& hubAddress,
                                         int scene)
{
    const DeviceSetInfo* hub = findHub(sets, hubAddress, scene);
    if (hub == nullptr) {
        return std::nullopt;
    }
    // Other hubs of the set are listed among the peripherals on purpose.
    const QList<const DeviceSetInfo*> members = companions(sets, *hub);
    OrderedXml xml;
    open(xml);
    writeMacAddresses(xml, members, deviceAt);
    writePositions(xml, members);
    writeName(xml, deviceAt(hubAddress), hubNameMode);
    return BuiltHubFile{hub->deviceSetNumber, close(xml)};
}

std::optional<QStringList> listPeripherals(const QList<DeviceSetInfo>& sets,
                                           const DeviceLookup& deviceAt, const QString& hubAddress,
                                           int scene)
{
    const DeviceSetInfo* hub = findHub(sets, hubAddress, scene);
    if (hub == nullptr) {
        return std::nullopt;
    }
    QStringList addresses;
    for (const DeviceSetInfo* member : companions(sets, *hub)) {
        const DeviceData* device = deviceAt(member->ipAddress);
        // A member that is not known stays listed, so that its missing file ends the installation
        // instead of being passed over.
        if (device == nullptr || hasOwnFile(device->modelName)) {
            addresses.append(member->ipAddress);
        }
    }
    return addresses;
}

std::optional<BuiltPeripheralFile> buildPeripheralFile(const DeviceLookup& deviceAt,
                                                       const QString& ipAddress)
{
    const DeviceData* device = deviceAt(ipAddress);
    if (device == nullptr) {
        return std::nullopt;
    }
    OrderedXml xml;
    open(xml);
    writeName(xml, device, nameMode(device->modelName));
    return BuiltPeripheralFile{device->macAddress, close(xml)};
}
