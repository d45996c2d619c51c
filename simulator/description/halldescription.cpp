#include "halldescription.h"

#include "addresssequence.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <array>
#include <utility>

namespace {

struct ModelRow
{
    const char* model;
    const char* label;
    const char* version;
};

constexpr std::array peripheralModels = {
    ModelRow{"PX-DL8", "Microphone", "2.1.0"},    ModelRow{"LQA4-08S", "Speaker", "2.1.0"},
    ModelRow{"PX-BK4", "Boundary", "2.0.3"},      ModelRow{"PNB-QE7", "Panel", "2.2.0"},
    ModelRow{"PX-NDE2", "Access-point", "1.9.3"}, ModelRow{"DSK4M", "Desk-speaker", "2.0.0"},
};

// Locally administered addresses, so that no maker's device is impersonated.
constexpr quint64 firstHubMac = 0x021A00000001;
constexpr quint64 firstSecondMac = 0x021A00010001;
constexpr quint64 firstPeripheralMac = 0x021A00100001;

QString macText(quint64 mac)
{
    QStringList groups;
    for (int shift = 40; shift >= 0; shift -= 8) {
        groups.append(QStringLiteral("%1").arg((mac >> shift) & 0xFF, 2, 16, QLatin1Char('0')));
    }
    return groups.join(QLatin1Char(':')).toUpper();
}

QString numberText(int number, int width)
{
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

QString quotedForShell(const QString& argument)
{
    QString quoted = argument;
    for (const char16_t special : {u'\\', u'"', u'$', u'`'}) {
        quoted.replace(QChar(special), QStringLiteral("\\") + QChar(special));
    }
    // An interactive shell would look for an earlier command behind it, even between double quotes,
    // where a backslash stops that but stays.
    quoted.replace(u'!', QStringLiteral("\"'!'\""));
    return QStringLiteral("\"%1\"").arg(quoted);
}

QString handOver(const DeviceDescription& device)
{
    return QStringLiteral("-D:") +
           QStringList{device.model, device.label, device.version, device.address, device.mac}.join(
               QLatin1Char('/'));
}

/// Tells the first address that is none or is taken, and takes it otherwise.
std::optional<QString> addressProblem(const QString& address, QSet<QString>& taken)
{
    if (QHostAddress(address).protocol() != QAbstractSocket::IPv4Protocol ||
        QHostAddress(address).toString() != address) {
        return QStringLiteral("\"%1\" is no IPv4 address").arg(address);
    }
    if (taken.contains(address)) {
        return QStringLiteral("the address %1 is given twice").arg(address);
    }
    taken.insert(address);
    return std::nullopt;
}

/// The texts travel between slashes to the wizard and between double quotes in a device's answers.
bool canTravel(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character == u'/' || character == u'"' ||
               character.category() == QChar::Other_Control;
    });
}

std::optional<QString> textProblem(const DeviceDescription& device)
{
    // A label that is not given is made from the model.
    const std::array texts = {std::pair("model", device.model), std::pair("label", device.label),
                              std::pair("version", device.version)};
    for (const auto& [name, text] : texts) {
        if (!canTravel(text)) {
            return QStringLiteral("\"%1\" holds a slash, a double quote or a control character")
                .arg(QLatin1String(name));
        }
    }
    return std::nullopt;
}

/// The name travels between double quotes in a header line.
std::optional<QString> exportProblem(const HubDescription& hub)
{
    if (!isStorageName(hub.storageName())) {
        return QStringLiteral(
            "\"export-file\" does not begin with a storage name: 1 to 64 letters, "
            "digits, \"-\" or \"_\" before its first dot");
    }
    if (hub.exportFile.contains(u'"') || hub.exportFile.contains(u'\r') ||
        hub.exportFile.contains(u'\n')) {
        return QStringLiteral("\"export-file\" holds a double quote or a line's end");
    }
    return std::nullopt;
}

QString withPlace(const QString& list, qsizetype index, const QString& problem)
{
    return QStringLiteral("%1 %2: %3").arg(list, QString::number(index + 1), problem);
}

/// The first device that tells something about itself that it cannot.
std::optional<QString> deviceProblem(const HallDescription& hall)
{
    for (qsizetype index = 0; index < hall.hubs.size(); ++index) {
        const HubDescription& hub = hall.hubs.at(index);
        const std::optional<QString> found = textProblem(hub);
        if (const std::optional<QString> problem = found ? found : exportProblem(hub)) {
            return withPlace(QStringLiteral("hub"), index, *problem);
        }
    }
    for (qsizetype index = 0; index < hall.peripherals.size(); ++index) {
        if (const std::optional<QString> problem = textProblem(hall.peripherals.at(index))) {
            return withPlace(QStringLiteral("peripheral"), index, *problem);
        }
    }
    return std::nullopt;
}

QStringList addressesOf(const HallDescription& hall)
{
    QStringList addresses;
    for (const HubDescription& hub : hall.hubs) {
        addresses.append(hub.address);
    }
    for (const DeviceDescription& device : hall.peripherals) {
        addresses.append(device.address);
    }
    for (const HubDescription& hub : hall.hubs) {
        if (!hub.secondAddress.isEmpty()) {
            addresses.append(hub.secondAddress);
        }
    }
    return addresses;
}

} // namespace

QString HubDescription::storageName() const
{
    return exportFile.section(QLatin1Char('.'), 0, 0);
}

std::optional<HallDescription> HallDescription::byCounts(int hubs, int peripherals,
                                                         const QString& base)
{
    if (hubs < 0 || peripherals < 0 || hubs > maxDevices || peripherals > maxDevices - hubs) {
        return std::nullopt;
    }
    AddressSequence addresses(base);
    HallDescription hall;
    for (int index = 0; index < hubs; ++index) {
        hall.hubs.append(standardHub(index));
        hall.hubs.last().address = addresses.next();
    }
    for (int index = 0; index < peripherals; ++index) {
        hall.peripherals.append(standardPeripheral(index));
        hall.peripherals.last().address = addresses.next();
    }
    return hall.problem() ? std::nullopt : std::optional(hall);
}

void HallDescription::addSecondAddresses(int count)
{
    if (hubs.isEmpty()) {
        return;
    }
    AddressSequence addresses(addressesOf(*this).last());
    addresses.next();
    for (int index = 0; index < qMin(count, static_cast<int>(hubs.size())); ++index) {
        hubs[index].secondAddress = addresses.next();
        hubs[index].secondMac = macText(firstSecondMac + static_cast<quint64>(index));
    }
}

int HallDescription::addressCount() const
{
    return static_cast<int>(addressesOf(*this).size());
}

std::optional<QString> HallDescription::problem() const
{
    QSet<QString> taken;
    for (const QString& address : addressesOf(*this)) {
        if (std::optional<QString> found = addressProblem(address, taken)) {
            return found;
        }
    }
    if (taken.isEmpty()) {
        return QStringLiteral("the hall has no devices");
    }
    if (std::optional<QString> found = deviceProblem(*this)) {
        return found;
    }
    for (const Fault& fault : faults) {
        if (!fault.address.isEmpty() && !taken.contains(fault.address)) {
            return QStringLiteral("a fault names %1, where there is no device").arg(fault.address);
        }
    }
    if (QHostAddress(discoveryListen).protocol() != QAbstractSocket::IPv4Protocol) {
        return QStringLiteral("\"%1\" is no address to hear queries at").arg(discoveryListen);
    }
    if (taken.size() > maxDevices) {
        return QStringLiteral("a hall holds no more than %1 devices").arg(maxDevices);
    }
    return std::nullopt;
}

QStringList HallDescription::wizardArguments() const
{
    QStringList arguments{QStringLiteral("-N:1")};
    for (const HubDescription& hub : hubs) {
        arguments.append(handOver(hub));
    }
    for (const DeviceDescription& device : peripherals) {
        arguments.append(handOver(device));
    }
    return arguments;
}

QString HallDescription::wizardCommandLine() const
{
    QStringList words{QStringLiteral("tessel")};
    const QStringList arguments = wizardArguments();
    words.append(arguments.front());
    for (const QString& argument : arguments.mid(1)) {
        words.append(quotedForShell(argument));
    }
    return words.join(QLatin1Char(' '));
}

bool isStorageName(const QString& name)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_-]{1,64}\\z"));
    return form.match(name).hasMatch();
}

HubDescription standardHub(int index)
{
    HubDescription hub;
    hub.model = QStringLiteral("PX-HB");
    hub.label = QStringLiteral("Hub-%1").arg(index + 1);
    hub.version = QStringLiteral("2.1.0");
    hub.mac = macText(firstHubMac + static_cast<quint64>(index));
    hub.serial = QStringLiteral("HB") + numberText(index + 1, 6);
    hub.deviceId = QString::number(index + 1);
    hub.exportFile = QStringLiteral("hub%1.xml").arg(numberText(index + 1, 2));
    return hub;
}

DeviceDescription standardPeripheral(int index)
{
    const ModelRow& row = peripheralModels.at(static_cast<size_t>(index) % peripheralModels.size());
    DeviceDescription device;
    device.model = QLatin1String(row.model);
    device.label = QStringLiteral("%1-%2").arg(QLatin1String(row.label)).arg(index + 1);
    device.version = QLatin1String(row.version);
    device.mac = macText(firstPeripheralMac + static_cast<quint64>(index));
    device.serial = QStringLiteral("PD") + numberText(index + 1, 6);
    device.deviceId = QString::number(index + 1);
    return device;
}
