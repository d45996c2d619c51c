#pragma once

#include "records.h"

#include <QHash>
#include <QList>
#include <QString>

class IDocAccessor;

/// How large the hall of a measurement is. Hubs and peripherals are spread over four rooms, and
/// every layout keeps the four rooms apart.
struct HallSize
{
    int hubs = 4;
    int peripherals = 0;
    int layouts = 10;
};

/// What the steps up to the preset names store, as plain lists: what a floor works from.
struct HallRecords
{
    QList<DeviceData> devices;
    QHash<QString, DeviceData> deviceAt; ///< the same by address
    QList<RoomInfo> rooms;
    QList<SceneInfo> layouts;
    QList<DeviceSetInfo> sets;
    QList<PresetInfo> presets;
};

HallRecords hallRecords(const HallSize& size);

/// Fills an empty document with the same records.
void fillDocument(IDocAccessor& doc, const HallSize& size);

/// The address of a device by its number, hubs first.
QString benchAddress(int device);
