#include "hallfile.h"

#include "configuration.h"
#include "resumefile.h"
#include "resumexml.h"
#include "workrestore.h"

#include <QSaveFile>

#include <utility>
#include <variant>

namespace {

QString at(const QString& path, const QString& reason)
{
    return path + QStringLiteral(": ") + reason;
}

DeviceData deviceFrom(const SavedDevice& saved)
{
    DeviceData device;
    device.label = saved.label;
    device.ipAddress = saved.ipAddress;
    device.macAddress = saved.macAddress;
    device.modelName = saved.modelName;
    device.roomNumber = saved.roomNumber;
    device.labelModified = saved.labelModified;
    return device;
}

/// The wizard looks for a file's devices in its network; here they are what the file says.
void takeDevices(SavedWork& work, DeviceRecords& devices)
{
    for (SavedSection& section : work.sections) {
        if (auto* saved = std::get_if<QList<SavedDevice>>(&section)) {
            for (const SavedDevice& device : std::as_const(*saved)) {
                devices.append(deviceFrom(device));
            }
            saved->clear();
        }
    }
}

} // namespace

HallReading readHallFile(const QString& path)
{
    ConfigurationReading reading = readConfiguration(path);
    if (!reading.fault.isEmpty()) {
        return {nullptr, at(path, reading.fault)};
    }
    auto hall = std::make_unique<HallDocument>();
    Configuration& configuration = *reading.configuration;
    takeDevices(configuration.work, hall->data().devices);
    restoreWork(hall->data(), configuration.work, configuration.pictures);
    return {std::move(hall), {}};
}

QByteArray packHall(const DocumentData& hall)
{
    return packResumeFile({writeResumeXml(gatherWork(hall)), hall.scenes});
}

QString writeHallFile(const QString& path, const DocumentData& hall)
{
    if (writeResumeFile(path, packHall(hall))) {
        return {};
    }
    QSaveFile file(path);
    const QString reason = file.open(QIODevice::WriteOnly)
                               ? QStringLiteral("it could not be written completely")
                               : file.errorString();
    file.cancelWriting();
    return at(path, reason);
}
