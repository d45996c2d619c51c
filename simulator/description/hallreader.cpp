#include "hallreader.h"

#include "addresssequence.h"
#include "faultreader.h"
#include "jsonfields.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

const QString hubsKey = QStringLiteral("hubs");
const QString peripheralsKey = QStringLiteral("peripherals");
const QString passwordKey = QStringLiteral("password");
const QString pollsKey = QStringLiteral("export-polls");

/// What all hubs have in common unless their own entries say otherwise.
struct HubDefaults
{
    std::optional<QString> password;
    int exportPolls = 0;
};

QString macField(JsonFields& fields, const QString& key, const QString& fallback)
{
    static const QRegularExpression form(QStringLiteral("^(?:[0-9A-F]{2}(?::[0-9A-F]{2}){5})?\\z"));
    QString mac = fields.text(key, fallback);
    if (!form.match(mac).hasMatch()) {
        fields.complain(key, QStringLiteral("is no MAC address such as 02:1A:00:00:00:01"));
    }
    return mac;
}

void readDevice(JsonFields& fields, DeviceDescription& device)
{
    if (fields.has(QStringLiteral("model"))) {
        const QString number = device.deviceId;
        device.model = fields.text(QStringLiteral("model"), device.model);
        device.label = device.model + QLatin1Char('-') + number;
        device.version = QStringLiteral("2.1.0");
    }
    device.label = fields.text(QStringLiteral("label"), device.label);
    device.version = fields.text(QStringLiteral("version"), device.version);
    device.address = fields.text(QStringLiteral("address"), device.address);
    device.mac = macField(fields, QStringLiteral("mac"), device.mac);
    device.serial = fields.text(QStringLiteral("serial"), device.serial);
    device.deviceId = fields.text(QStringLiteral("device-id"), device.deviceId);
}

std::optional<QString> passwordField(JsonFields& fields, const std::optional<QString>& fallback)
{
    return fields.has(passwordKey) ? std::optional(fields.text(passwordKey, QString())) : fallback;
}

void readHub(JsonFields& fields, HubDescription& hub)
{
    hub.password = passwordField(fields, hub.password);
    hub.exportPolls = fields.number(pollsKey, hub.exportPolls, 0, HubDescription::maxExportPolls);
    hub.exportFile = fields.text(QStringLiteral("export-file"), hub.exportFile);
    hub.secondAddress = fields.text(QStringLiteral("second-address"), hub.secondAddress);
    hub.secondMac = macField(fields, QStringLiteral("second-mac"), hub.secondMac);
    if (!hub.secondAddress.isEmpty() && hub.secondMac.isEmpty()) {
        fields.complain(QStringLiteral("second-mac"), QStringLiteral("is missing"));
    }
}

/// The entries under `key`: objects, or as many empty ones as a number says.
QList<QJsonObject> entries(JsonFields& fields, const QString& key)
{
    QList<QJsonObject> objects;
    if (!fields.value(key).isArray()) {
        objects.resize(fields.number(key, 0, 0, HallDescription::maxDevices));
        return objects;
    }
    const QJsonArray array = fields.value(key).toArray();
    for (const auto& value : array) {
        if (!value.isObject()) {
            fields.complain(key, QStringLiteral("holds something that is no object"));
        }
        objects.append(value.toObject());
    }
    return objects;
}

void readHubs(JsonFields& fields, AddressSequence& addresses, const HubDefaults& defaults,
              HallDescription& hall, QString* error)
{
    for (const QJsonObject& object : entries(fields, hubsKey)) {
        const int index = static_cast<int>(hall.hubs.size());
        JsonFields hubFields(object, QStringLiteral("hub %1").arg(index + 1), error);
        HubDescription hub = standardHub(index);
        hub.address = addresses.next();
        hub.password = defaults.password;
        hub.exportPolls = defaults.exportPolls;
        readDevice(hubFields, hub);
        readHub(hubFields, hub);
        hubFields.finish();
        hall.hubs.append(hub);
    }
}

void readPeripherals(JsonFields& fields, AddressSequence& addresses, HallDescription& hall,
                     QString* error)
{
    for (const QJsonObject& object : entries(fields, peripheralsKey)) {
        const int index = static_cast<int>(hall.peripherals.size());
        JsonFields deviceFields(object, QStringLiteral("peripheral %1").arg(index + 1), error);
        DeviceDescription device = standardPeripheral(index);
        device.address = addresses.next();
        readDevice(deviceFields, device);
        deviceFields.finish();
        hall.peripherals.append(device);
    }
}

void readFaults(JsonFields& fields, HallDescription& hall, QString* error)
{
    const QJsonValue list = fields.value(QStringLiteral("faults"));
    if (!list.isUndefined() && !list.isArray()) {
        fields.complain(QStringLiteral("faults"), QStringLiteral("is no list"));
    }
    const QJsonArray array = list.toArray();
    for (const auto& value : array) {
        const QString where = QStringLiteral("fault %1").arg(hall.faults.size() + 1);
        if (const std::optional<Fault> fault = faultFromJson(value.toObject(), where, error)) {
            hall.faults.append(*fault);
        }
    }
}

HallDescription readFields(const QJsonObject& object, QString* error)
{
    JsonFields fields(object, QStringLiteral("hall"), error);
    HallDescription hall;
    AddressSequence addresses(
        fields.text(QStringLiteral("base"), QLatin1String(HallDescription::defaultBase)));
    const HubDefaults defaults{
        passwordField(fields, std::nullopt),
        fields.number(pollsKey, HubDescription().exportPolls, 0, HubDescription::maxExportPolls)};
    fields.value(passwordKey);
    hall.discovery = fields.flag(QStringLiteral("discovery"), hall.discovery);
    hall.discoveryListen = fields.text(QStringLiteral("discovery-listen"), hall.discoveryListen);
    readHubs(fields, addresses, defaults, hall, error);
    readPeripherals(fields, addresses, hall, error);
    hall.addSecondAddresses(fields.number(QStringLiteral("second-addresses"), 0, 0,
                                          static_cast<int>(hall.hubs.size())));
    readFaults(fields, hall, error);
    fields.finish();
    return hall;
}

} // namespace

HallReading readHall(const QByteArray& json)
{
    QJsonParseError parsing{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &parsing);
    if (!document.isObject()) {
        return {{},
                QStringLiteral("no JSON object: %1 at byte %2")
                    .arg(parsing.errorString())
                    .arg(parsing.offset)};
    }
    HallReading reading;
    const HallDescription hall = readFields(document.object(), &reading.error);
    if (reading.error.isEmpty()) {
        reading.error = hall.problem().value_or(QString());
    }
    if (reading.error.isEmpty()) {
        reading.hall = hall;
    }
    return reading;
}

HallReading readHallFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, QStringLiteral("cannot read %1: %2").arg(path, file.errorString())};
    }
    HallReading reading = readHall(file.readAll());
    if (!reading.hall) {
        reading.error.prepend(path + QStringLiteral(": "));
    }
    return reading;
}
