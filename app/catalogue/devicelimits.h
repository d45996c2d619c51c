#pragma once

#include <QList>
#include <QString>

struct DeviceCounts;

/// What of a count is beyond what one conference system serves.
struct LimitBreach
{
    enum class Limit
    {
        Hubs,
        Microphones,
        Speakers,
        MicrophonesAndSpeakers,
        Controllers
    };

    Limit limit = Limit::Hubs;
    int count = 0; ///< how many there are
    int max = 0;   ///< how many there may be

    bool operator==(const LimitBreach&) const = default;
};

/// Whether a breach is about microphones, alone or together with speakers; likewise about speakers.
bool concernsMicrophones(const LimitBreach& breach);
bool concernsSpeakers(const LimitBreach& breach);

/// The limits that the devices of one room break.
QList<LimitBreach> breachesOfRoom(const DeviceCounts& counts);

/// The limits that a device set breaks: microphones and speakers count together only.
QList<LimitBreach> breachesOfSet(const DeviceCounts& counts);

/// The breach for people, such as "17 microphones and speakers together; 16 are possible".
QString breachWords(const LimitBreach& breach);
