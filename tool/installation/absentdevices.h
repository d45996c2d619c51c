#pragma once

#include "devicejudgement.h"
#include "documentdata.h"
#include "nicrows.h"

/// A device of a hall that is not there as the hall has it.
struct AbsentDevice
{
    DeviceData device;
    QString reason;
};

/// The devices in rooms that a search did not find, by the rule by which saved work is resumed: the
/// wizard takes the device, and address, MAC address and model are those of the hall. `sides` are
/// what was searched on: that an address lies in another network is a part of the reason.
QList<AbsentDevice> absentDevices(const DocumentData& hall, const QList<JudgedDevice>& found,
                                  const QList<NicRow>& sides = {});
