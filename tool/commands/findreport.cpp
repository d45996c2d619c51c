#include "findreport.h"

#include "texttable.h"

#include <QJsonArray>

namespace {

bool isAsItShould(const JudgedDevice& device)
{
    return device.verdict == Verdict::Taken || device.verdict == Verdict::SecondPort;
}

QString presetCell(const QString& preset)
{
    return preset == u"0" ? QStringLiteral("none") : preset;
}

QJsonValue presetValue(const QString& preset)
{
    bool isNumber = false;
    const int number = preset.toInt(&isNumber);
    return isNumber ? QJsonValue(number) : QJsonValue();
}

QString resultName(ProbeResult result)
{
    switch (result) {
    case ProbeResult::Answers:
        return QStringLiteral("answers");
    case ProbeResult::DirectOnly:
        return QStringLiteral("answers-only-directly");
    case ProbeResult::TextOnly:
        return QStringLiteral("text-commands-only");
    case ProbeResult::RefusesText:
        return QStringLiteral("refuses");
    case ProbeResult::Silent:
        break;
    }
    return QStringLiteral("silent");
}

/// What a device told about itself without being judged; model and MAC stand in queries only.
QString toldByText(const Probe& probe)
{
    return QStringLiteral("answers text commands only, not judged: label %1, firmware %2, serial "
                          "number %3")
        .arg(probe.label, probe.version, probe.serialNumber);
}

QString resultWords(const Probe& probe)
{
    switch (probe.result) {
    case ProbeResult::Answers:
        return QStringLiteral("answers the search");
    case ProbeResult::DirectOnly:
        return QStringLiteral("answers only when asked directly: broadcasts are lost on the way");
    case ProbeResult::TextOnly:
        return toldByText(probe);
    case ProbeResult::RefusesText:
        return QStringLiteral("refuses: something is there, but no device of a conference system");
    case ProbeResult::Silent:
        break;
    }
    return QStringLiteral("silent: nobody is there, or nothing gets through");
}

QString deviceTables(const QList<JudgedDevice>& devices)
{
    TextTable verdicts({QStringLiteral("Address"), QStringLiteral("Label"), QStringLiteral("Model"),
                        QStringLiteral("Firmware"), QStringLiteral("Verdict")});
    TextTable details({QStringLiteral("Address"), QStringLiteral("MAC address"),
                       QStringLiteral("Serial number"), QStringLiteral("Preset")});
    for (const JudgedDevice& device : devices) {
        const DetectedDevice& told = device.record;
        verdicts.addRow(
            {told.ipAddress, told.deviceName, told.modelName, told.version, verdictWords(device)});
        details.addRow(
            {told.ipAddress, told.macAddress, told.serialNumber, presetCell(told.currentPreset)});
    }
    return verdicts.text() + u'\n' + details.text();
}

QString probeTable(const QList<Probe>& probes)
{
    TextTable table({QStringLiteral("Asked"), QStringLiteral("Result")});
    for (const Probe& probe : probes) {
        table.addRow({probe.address, resultWords(probe)});
    }
    return table.text();
}

QJsonObject deviceObject(const JudgedDevice& device)
{
    const DetectedDevice& told = device.record;
    return {{QStringLiteral("address"), told.ipAddress},
            {QStringLiteral("mac"), told.macAddress},
            {QStringLiteral("model"), told.modelName},
            {QStringLiteral("label"), told.deviceName},
            {QStringLiteral("firmware"), told.version},
            {QStringLiteral("serial"), told.serialNumber},
            {QStringLiteral("id"), told.deviceId},
            {QStringLiteral("preset"), presetValue(told.currentPreset)},
            {QStringLiteral("verdict"), verdictName(device.verdict)},
            {QStringLiteral("reason"), verdictWords(device)},
            {QStringLiteral("needs"), device.neededFirmware},
            {QStringLiteral("other"), device.otherAddress}};
}

QJsonObject probeObject(const Probe& probe)
{
    return {{QStringLiteral("address"), probe.address},
            {QStringLiteral("result"), resultName(probe.result)},
            {QStringLiteral("reason"), resultWords(probe)},
            {QStringLiteral("label"), probe.label},
            {QStringLiteral("firmware"), probe.version},
            {QStringLiteral("serial"), probe.serialNumber},
            {QStringLiteral("id"), probe.deviceId},
            {QStringLiteral("preset"), presetValue(probe.currentPreset)}};
}

QJsonObject sideObject(const InterfaceChoice& side)
{
    return {{QStringLiteral("name"), side.row->name},
            {QStringLiteral("address"), side.row->address},
            {QStringLiteral("mask"), side.row->mask},
            {QStringLiteral("rivals"), QJsonArray::fromStringList(side.rivals)}};
}

} // namespace

QString findTables(const FindResult& result)
{
    QStringList tables;
    if (!result.devices.isEmpty()) {
        tables.append(deviceTables(result.devices));
    }
    if (!result.probes.isEmpty()) {
        tables.append(probeTable(result.probes));
    }
    return tables.join(u'\n');
}

QJsonObject findObject(const FindResult& result)
{
    QJsonArray devices;
    for (const JudgedDevice& device : result.devices) {
        devices.append(deviceObject(device));
    }
    QJsonArray probes;
    for (const Probe& probe : result.probes) {
        probes.append(probeObject(probe));
    }
    return {{QStringLiteral("begun"), result.begun.toString(Qt::ISODate)},
            {QStringLiteral("interface"), sideObject(result.side)},
            {QStringLiteral("devices"), devices},
            {QStringLiteral("probes"), probes}};
}

QStringList findFaults(const FindResult& result)
{
    QStringList faults;
    for (const QString& rival : result.side.rivals) {
        faults.append(QStringLiteral("%1 and %2 have addresses in one network: what is meant for "
                                     "the devices may leave by either")
                          .arg(result.side.row->name, rival));
    }
    if (result.devices.isEmpty()) {
        faults.append(QStringLiteral("no device answered on %1 (%2)")
                          .arg(result.side.row->name, result.side.row->address));
    }
    for (const JudgedDevice& device : result.devices) {
        if (!isAsItShould(device)) {
            faults.append(device.record.ipAddress + QStringLiteral(": ") + verdictWords(device));
        }
    }
    for (const Probe& probe : result.probes) {
        if (probe.result != ProbeResult::Answers) {
            faults.append(probe.address + QStringLiteral(": ") + resultWords(probe));
        }
    }
    return faults;
}
