#include "findreport.h"

#include "resultkeys.h"
#include "texttable.h"

#include <QJsonArray>

namespace {

namespace Key = ResultKey;

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

QString probeTable(const QList<Probe>& probes, const InterfaceChoice& side)
{
    TextTable table({QStringLiteral("Asked"), QStringLiteral("Result")});
    for (const Probe& probe : probes) {
        table.addRow({probe.address, probeWords(probe, side)});
    }
    return table.text();
}

QJsonObject deviceObject(const JudgedDevice& device)
{
    const DetectedDevice& told = device.record;
    return {{Key::address(), told.ipAddress},
            {Key::mac(), told.macAddress},
            {Key::model(), told.modelName},
            {Key::label(), told.deviceName},
            {Key::firmware(), told.version},
            {Key::serial(), told.serialNumber},
            {Key::id(), told.deviceId},
            {Key::preset(), presetValue(told.currentPreset)},
            {Key::verdict(), verdictName(device.verdict)},
            {Key::reason(), verdictWords(device)},
            {Key::needs(), device.neededFirmware},
            {Key::other(), device.otherAddress}};
}

QJsonObject probeObject(const Probe& probe, const InterfaceChoice& side)
{
    return {{Key::address(), probe.address},
            {Key::result(), resultName(probe.result)},
            {Key::reason(), probeWords(probe, side)},
            {Key::label(), probe.label},
            {Key::firmware(), probe.version},
            {Key::serial(), probe.serialNumber},
            {Key::id(), probe.deviceId},
            {Key::preset(), presetValue(probe.currentPreset)}};
}

QJsonObject sideObject(const InterfaceChoice& side)
{
    return {{Key::name(), side.row->name},
            {Key::address(), side.row->address},
            {Key::mask(), side.row->mask},
            {Key::rivals(), QJsonArray::fromStringList(side.rivals)}};
}

} // namespace

QString findTables(const SearchResult& result)
{
    QStringList tables;
    if (!result.devices.isEmpty()) {
        tables.append(deviceTables(result.devices));
    }
    if (!result.probes.isEmpty()) {
        tables.append(probeTable(result.probes, result.side));
    }
    return tables.join(u'\n');
}

QJsonObject findObject(const SearchResult& result)
{
    QJsonArray devices;
    for (const JudgedDevice& device : result.devices) {
        devices.append(deviceObject(device));
    }
    QJsonArray probes;
    for (const Probe& probe : result.probes) {
        probes.append(probeObject(probe, result.side));
    }
    return {{Key::begun(), result.begun.toString(Qt::ISODate)},
            {Key::interface(), sideObject(result.side)},
            {Key::devices(), devices},
            {Key::probes(), probes}};
}

QString silenceFault(const SearchResult& result)
{
    return result.devices.isEmpty() ? QStringLiteral("no device answered on %1 (%2)")
                                          .arg(result.side.row->name, result.side.row->address)
                                    : QString();
}

QStringList findFaults(const SearchResult& result)
{
    QStringList faults;
    for (const JudgedDevice& device : result.devices) {
        if (!isAsItShould(device)) {
            faults.append(device.record.ipAddress + QStringLiteral(": ") + verdictWords(device));
        }
    }
    for (const Probe& probe : result.probes) {
        if (probe.result != ProbeResult::Answers) {
            faults.append(probe.address + QStringLiteral(": ") + probeWords(probe, result.side));
        }
    }
    return faults;
}
