#include "devicelimits.h"

#include "deviceclass.h"

#include <QCoreApplication>

namespace {

using enum LimitBreach::Limit;

QList<LimitBreach> beyondLimit(const QList<LimitBreach>& counted)
{
    QList<LimitBreach> breaches;
    for (const LimitBreach& candidate : counted) {
        if (candidate.count > candidate.max) {
            breaches.append(candidate);
        }
    }
    return breaches;
}

/// Gives the texts their context, where extraction tools find it too.
struct DeviceLimits
{
    Q_DECLARE_TR_FUNCTIONS(DeviceLimits)
};

QString countedWords(LimitBreach::Limit limit)
{
    switch (limit) {
    case Hubs:
        return DeviceLimits::tr("%1 PX-HBs; %2 is possible");
    case Microphones:
        return DeviceLimits::tr("%1 microphones; %2 are possible");
    case Speakers:
        return DeviceLimits::tr("%1 speakers; %2 are possible");
    case MicrophonesAndSpeakers:
        return DeviceLimits::tr("%1 microphones and speakers together; %2 are possible");
    case Controllers:
        return DeviceLimits::tr("%1 controllers; %2 are possible");
    }
    return {};
}

} // namespace

bool concernsMicrophones(const LimitBreach& breach)
{
    return breach.limit == Microphones || breach.limit == MicrophonesAndSpeakers;
}

bool concernsSpeakers(const LimitBreach& breach)
{
    return breach.limit == Speakers || breach.limit == MicrophonesAndSpeakers;
}

QList<LimitBreach> breachesOfRoom(const DeviceCounts& counts)
{
    return beyondLimit({{Hubs, counts.hubs, DeviceCounts::maxHubs},
                        {Microphones, counts.microphones, DeviceCounts::maxMicrophones},
                        {Speakers, counts.speakers, DeviceCounts::maxSpeakers},
                        {MicrophonesAndSpeakers, counts.microphones + counts.speakers,
                         DeviceCounts::maxMicrophonesAndSpeakers},
                        {Controllers, counts.controllers, DeviceCounts::maxControllers}});
}

QList<LimitBreach> breachesOfSet(const DeviceCounts& counts)
{
    return beyondLimit({{Hubs, counts.hubs, DeviceCounts::maxHubs},
                        {MicrophonesAndSpeakers, counts.microphones + counts.speakers,
                         DeviceCounts::maxMicrophonesAndSpeakers},
                        {Controllers, counts.controllers, DeviceCounts::maxControllers}});
}

QString breachWords(const LimitBreach& breach)
{
    return countedWords(breach.limit)
        .arg(QString::number(breach.count), QString::number(breach.max));
}
