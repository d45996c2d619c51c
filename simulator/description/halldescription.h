#pragma once

#include "fault.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// What a device of the hall tells about itself.
struct DeviceDescription
{
    QString model = {};
    QString label = {};
    QString version = {};
    QString address = {};
    /// Six groups of two upper-case digits joined with ":".
    QString mac = {};
    QString serial = {};
    QString deviceId = {};
};

/// A hub: a device with a management interface.
struct HubDescription : DeviceDescription
{
    static constexpr int maxExportPolls = 1000;

    /// The password of the account "admin"; nothing: the hub has never been given one.
    std::optional<QString> password = {};
    /// A second network port of the same hub; empty: it has one only.
    QString secondAddress = {};
    QString secondMac = {};
    /// How many times the export is asked for in vain before it is ready.
    int exportPolls = 2;
    /// The name under which the hub exports its configuration.
    QString exportFile = {};

    /// The name under which the hub's own preset file is stored: the export's up to its first dot.
    QString storageName() const;
};

/// All devices of a hall and how it is set up. Plain data, to be changed freely before a Hall is
/// made of it.
struct HallDescription
{
    static constexpr const char* defaultBase = "127.0.1.1";
    static constexpr int maxDevices = 2000;

    QList<HubDescription> hubs = {};
    QList<DeviceDescription> peripherals = {};
    QList<Fault> faults = {};
    /// True: the hall answers discovery queries.
    bool discovery = false;
    /// Where queries are heard: an address of the machine, a broadcast address, or any.
    QString discoveryListen = QStringLiteral("0.0.0.0");

    /// A hall of so many hubs and peripherals at addresses counted upwards from `base` (hubs
    /// first), with labels, serial numbers and MAC addresses of their own. The peripherals go
    /// through every class of model. Nothing when the counts or the address make no hall.
    static std::optional<HallDescription>
    byCounts(int hubs, int peripherals, const QString& base = QLatin1String(defaultBase));

    /// Gives the first `count` hubs a second address, behind those of the last device.
    void addSecondAddresses(int count);

    /// The number of addresses at which devices answer.
    int addressCount() const;

    /// Why no hall can be made of this (an address that is none, or is used twice, a text that
    /// cannot travel, ...); nothing when one can.
    std::optional<QString> problem() const;

    /// The arguments with which the wizard starts knowing this hall, without a search on the
    /// network: "-N:1", then one "-D:..." for each device.
    QStringList wizardArguments() const;

    /// The same as a line to be typed into a shell.
    QString wizardCommandLine() const;
};

/// True for a name under which a hub stores a preset file.
bool isStorageName(const QString& name);

/// A hub as number `index` (from 0) of a hall looks unless it is described otherwise.
HubDescription standardHub(int index);

/// A peripheral as number `index` (from 0) of a hall looks unless it is described otherwise.
DeviceDescription standardPeripheral(int index);
