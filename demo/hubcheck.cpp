#include "hubcheck.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int slots = 24;
const QLatin1String noMac("00:00:00:00:00:00");

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The whole text of a file whose "config" element has these attributes, written out by hand.
QByteArray provisioning(const QStringList& attributes)
{
    const QString config =
        attributes.isEmpty()
            ? QStringLiteral("<config/>")
            : QStringLiteral("<config ") + attributes.join(QLatin1Char(' ')) + QStringLiteral("/>");
    return QByteArray("<provisioning>\n ") + config.toUtf8() + QByteArray("\n</provisioning>\n");
}

QString attribute(const QString& name, const QString& value)
{
    return name + QStringLiteral("=\"") + value + QLatin1Char('"');
}

QString storageName(QString macAddress)
{
    return macAddress.remove(QLatin1Char(':'));
}

// Peripherals stand in the order in which they were found on the network, which differs from run
// to run; the order is taken from the file and everything else from the scenario.
QList<DemoDevice> inOrderOfFile(QList<DemoDevice> devices, const QByteArray& text)
{
    std::sort(devices.begin(), devices.end(), [&text](const DemoDevice& a, const DemoDevice& b) {
        return text.indexOf(a.macAddress.toUtf8()) < text.indexOf(b.macAddress.toUtf8());
    });
    return devices;
}

} // namespace

HubCheck::HubCheck(const DemoScenario& scenario, const QString& store)
    : m_scenario(scenario)
    , m_store(store)
{
}

QStringList HubCheck::differences(const DemoDevice& hub)
{
    m_differences.clear();
    checkState(hub);
    for (int layout = 1; layout <= m_scenario.layouts().size(); ++layout) {
        checkPreset(hub, layout);
    }
    return m_differences;
}

void HubCheck::checkState(const DemoDevice& hub)
{
    m_where = QStringLiteral("state.json");
    const QByteArray text = readFile(m_store.filePath(hub.address + QStringLiteral("/state.json")));
    const QJsonObject state = QJsonDocument::fromJson(text).object();
    if (state.value(QLatin1String("recalled-preset")).toInt() != 1) {
        differ(QStringLiteral("preset 1 was not recalled"));
    }
    const auto requests = state.value(QLatin1String("differences")).toArray();
    for (const QJsonValue difference : requests) {
        differ(difference.toString());
    }
    const QStringList presets =
        QDir(m_store.filePath(hub.address)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (presets.size() != m_scenario.layouts().size()) {
        differ(QStringLiteral("%1 presets").arg(presets.size()));
    }
}

void HubCheck::checkPreset(const DemoDevice& hub, int layout)
{
    m_where = QStringLiteral("preset-%1").arg(layout);
    const QDir folder(m_store.filePath(hub.address + QLatin1Char('/') + m_where));
    checkEntry(folder, m_scenario.groupOf(layout, hub.room).presetName, layout);

    QStringList files = folder.entryList({QStringLiteral("*.xml")}, QDir::Files);
    for (const DemoDevice& device : m_scenario.peripheralsOf(hub, layout)) {
        const QString file = storageName(device.macAddress) + QStringLiteral(".xml");
        if (files.removeOne(file)) {
            checkPeripheralFile(device, readFile(folder.filePath(file)));
        } else {
            differ(QStringLiteral("no file for %1").arg(device.address));
        }
    }
    if (files.size() == 1) {
        checkHubFile(hub, layout, readFile(folder.filePath(files.first())));
    } else {
        differ(QStringLiteral("%1 files where the hub's own should be").arg(files.size()));
    }
}

void HubCheck::checkEntry(const QDir& folder, const QString& name, int number)
{
    const QJsonObject entry =
        QJsonDocument::fromJson(readFile(folder.filePath(QStringLiteral("entry.json")))).object();
    if (entry.value(QLatin1String("description")).toString() != name ||
        entry.value(QLatin1String("preset-number")).toInt() != number) {
        differ(QStringLiteral("the entry is not number %1, \"%2\"").arg(number).arg(name));
    }
}

void HubCheck::checkHubFile(const DemoDevice& hub, int layout, const QByteArray& text)
{
    const QList<DemoDevice> devices = inOrderOfFile(m_scenario.peripheralsOf(hub, layout), text);
    QStringList attributes;
    for (int slot = 1; slot <= slots; ++slot) {
        attributes.append(
            attribute(QStringLiteral("peripheral.mac-addr%1").arg(slot),
                      slot <= devices.size() ? devices.at(slot - 1).macAddress : QString(noMac)));
    }
    for (int slot = 1; slot <= slots; ++slot) {
        const bool right = slot <= devices.size() &&
                           m_scenario.positionOf(devices.at(slot - 1)) == QLatin1String("R");
        attributes.append(attribute(QStringLiteral("peripheral.position%1").arg(slot),
                                    right ? QStringLiteral("2") : QStringLiteral("1")));
    }
    if (m_scenario.renames().contains(hub.address)) {
        attributes.append(attribute(QStringLiteral("sys.systemname"), m_scenario.labelOf(hub)));
        attributes.append(attribute(QStringLiteral("sys.systemname-mode"), QStringLiteral("0")));
    }
    if (text != provisioning(attributes)) {
        differ(QStringLiteral("the hub's own file differs"));
    }
}

void HubCheck::checkPeripheralFile(const DemoDevice& device, const QByteArray& text)
{
    QStringList attributes;
    if (m_scenario.renames().contains(device.address)) {
        const bool accessPoint = device.modelName.startsWith(QLatin1String("PX-NDE"));
        attributes.append(attribute(QStringLiteral("sys.systemname"), m_scenario.labelOf(device)));
        attributes.append(attribute(QStringLiteral("sys.systemname-mode"),
                                    accessPoint ? QStringLiteral("1") : QStringLiteral("0")));
    }
    if (text != provisioning(attributes)) {
        differ(QStringLiteral("the file of %1 differs").arg(device.address));
    }
}

void HubCheck::differ(const QString& what)
{
    m_differences.append(m_where + QStringLiteral(": ") + what);
}
