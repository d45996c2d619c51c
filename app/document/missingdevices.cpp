#include "missingdevices.h"

#include "savedwork.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <algorithm>

namespace {

// A file may name any number of devices at any length; a box of megabytes would stand still.
constexpr qsizetype maxLines = 1000;
constexpr qsizetype maxFieldLength = 100;

QString field(const QString& text)
{
    return text.left(maxFieldLength);
}

} // namespace

QString missingDevicesText(const QList<SavedDevice>& devices)
{
    const QString line =
        QCoreApplication::translate("MissingDevices", "Hostname:%1,Model:%2,IP=%3\n");
    QString lines;
    for (const SavedDevice& device : devices.first(std::min(devices.size(), maxLines))) {
        // All three in one go: a label may itself look like a placeholder.
        lines += line.arg(field(device.label), field(device.modelName), field(device.ipAddress));
    }
    return QCoreApplication::translate(
               "MissingDevices", "The following device cannot be found. Please check that it is "
                                 "powered and connected to the network.\n\n%1")
        .arg(lines);
}

void warnOfMissingDevices(const QList<SavedDevice>& devices)
{
    QMessageBox::warning(nullptr, QCoreApplication::translate("MissingDevices", "Missing device"),
                         missingDevicesText(devices));
}
