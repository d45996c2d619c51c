#include "hallreport.h"

#include <QStringList>
#include <array>

namespace {

constexpr std::array<int, 5> widths = {17, 19, 10, 9, 18};

/// A line of columns; the last cell runs on.
QString row(const QStringList& cells)
{
    QString line = QStringLiteral(" ");
    for (qsizetype column = 0; column < cells.size(); ++column) {
        line += QLatin1Char(' ');
        const auto index = static_cast<size_t>(column);
        line += index < widths.size() ? cells.at(column).leftJustified(widths.at(index))
                                      : cells.at(column);
    }
    return line.trimmed().prepend(QStringLiteral("  ")) + QLatin1Char('\n');
}

QStringList cells(const DeviceDescription& device)
{
    return {device.address, device.mac, device.model, device.version, device.label};
}

QString remark(const HubDescription& hub)
{
    const QString password =
        hub.password ? QStringLiteral("has a password") : QStringLiteral("has no password yet");
    return hub.secondAddress.isEmpty()
               ? password
               : password +
                     QStringLiteral(", also at %1 (%2)").arg(hub.secondAddress, hub.secondMac);
}

qsizetype fileCount(const SimulatedHub& hub)
{
    qsizetype count = 0;
    for (const StoredPreset& preset : hub.presets()) {
        count += preset.files.size();
    }
    return count;
}

QString hubLine(const SimulatedHub& hub)
{
    const QString recalled = hub.recalledPreset() == 0
                                 ? QStringLiteral("none recalled")
                                 : QStringLiteral("preset %1 recalled").arg(hub.recalledPreset());
    return QStringLiteral("  %1 %2: %3 presets, %4 files, %5\n")
        .arg(hub.address(), hub.description().label, QString::number(hub.presets().size()),
             QString::number(fileCount(hub)), recalled);
}

} // namespace

QString hallTable(const HallDescription& hall)
{
    QString table = row({QStringLiteral("Address"), QStringLiteral("MAC"), QStringLiteral("Model"),
                         QStringLiteral("Version"), QStringLiteral("Label"), QString()});
    for (const HubDescription& hub : hall.hubs) {
        table += row(cells(hub) << remark(hub));
    }
    for (const DeviceDescription& device : hall.peripherals) {
        table += row(cells(device));
    }
    return table;
}

QString howToStart(const HallDescription& hall)
{
    const QString handedOver = QStringLiteral("\n\n  %1\n").arg(hall.wizardCommandLine());
    return hall.discovery ? QStringLiteral("Start the wizard and let it search for the devices:\n\n"
                                           "  tessel\n\n"
                                           "Or hand the devices over to it, without a search:") +
                                handedOver
                          : QStringLiteral("Start the wizard with") + handedOver;
}

QString hallSummary(const Hall& hall)
{
    QString summary;
    for (const SimulatedHub* hub : hall.hubs()) {
        summary += hubLine(*hub);
    }
    const QStringList differences = hall.differences();
    summary += differences.isEmpty()
                   ? QStringLiteral("Every message was as prescribed.\n")
                   : QStringLiteral("%1 messages or lines were not as prescribed:\n  %2\n")
                         .arg(QString::number(differences.size()),
                              differences.join(QStringLiteral("\n  ")));
    return summary;
}
