#include "installablehall.h"

#include "hallfile.h"
#include "halljson.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int side = 8;
constexpr int columnsPerRoom = 2;

QJsonObject deviceObject(const DeviceDescription& device, int room)
{
    return {{QStringLiteral("address"), device.address},
            {QStringLiteral("label"), device.label},
            {QStringLiteral("mac"), device.mac},
            {QStringLiteral("model"), device.model},
            {QStringLiteral("room"), room}};
}

QJsonArray devicesOf(const HallDescription& description)
{
    QJsonArray devices;
    for (const HubDescription& hub : description.hubs) {
        devices.append(deviceObject(hub, int(devices.size()) + 1));
    }
    for (const DeviceDescription& device : description.peripherals) {
        devices.append(deviceObject(device, 1));
    }
    return devices;
}

QJsonArray gridOf(qsizetype rooms)
{
    QString row;
    for (int column = 0; column < side; ++column) {
        const int room = column / columnsPerRoom + 1;
        row += room <= rooms ? QString::number(room) : QStringLiteral(".");
    }
    QJsonArray grid;
    for (int line = 0; line < side; ++line) {
        grid.append(row);
    }
    return grid;
}

QJsonArray layoutsOf(const HallDescription& description)
{
    QStringList rooms;
    QJsonArray otherHubs;
    for (const HubDescription& hub : description.hubs) {
        if (!rooms.isEmpty()) {
            otherHubs.append(hub.address);
        }
        rooms.append(QString::number(rooms.size() + 1));
    }
    const QString together = rooms.join(u'+');
    const QJsonObject all{{QStringLiteral("rooms"), together},
                          {QStringLiteral("removed"), otherHubs}};
    return {QJsonObject{{QStringLiteral("rooms"), rooms.join(u'/')}},
            QJsonObject{{QStringLiteral("rooms"), together},
                        {QStringLiteral("combined"), QJsonArray{all}}}};
}

} // namespace

InstallableHall::InstallableHall(const HallDescription& description)
{
    const QJsonObject text{{QStringLiteral("rooms"), gridOf(description.hubs.size())},
                           {QStringLiteral("devices"), devicesOf(description)},
                           {QStringLiteral("layouts"), layoutsOf(description)}};
    const HallJsonReading reading = readHallJson(QJsonDocument(text).toJson());
    const QString path = beside("hall.tessel");
    if (reading.hall != nullptr && writeHallFile(path, reading.hall->data()).isEmpty()) {
        m_path = path;
    }
}

QString InstallableHall::privateFile(const char* name, const QByteArray& bytes) const
{
    QFile file(beside(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                           file.write(bytes) == bytes.size();
    return isWritten ? file.fileName() : QString();
}
