#include "changedhubs.h"

#include "halldocument.h"
#include "hallhubs.h"
#include "installplan.h"

#include <algorithm>

namespace {

bool isSame(const PlannedRequest& one, const PlannedRequest& other)
{
    return one.storageName == other.storageName && one.body == other.body &&
           one.place.step == other.place.step && one.place.presetNumber == other.place.presetNumber;
}

bool isSentTheSame(const QString& hub, HallDocument& before, HallDocument& after)
{
    const QList<PlannedRequest> former = planInstallation(hub, before).requests;
    const QList<PlannedRequest> present = planInstallation(hub, after).requests;
    return std::equal(former.begin(), former.end(), present.begin(), present.end(), isSame);
}

} // namespace

QList<DeviceData> changedHubs(HallDocument& before, HallDocument& after, const QString& address)
{
    QList<DeviceData> changed;
    for (const DeviceData& hub : placedHubs(after.data())) {
        if (hub.ipAddress == address || !isSentTheSame(hub.ipAddress, before, after)) {
            changed.append(hub);
        }
    }
    return changed;
}
