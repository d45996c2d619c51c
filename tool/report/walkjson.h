#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

/// A hub as a walk left it. Presets are numbers, 0 for none; nothing when it did not answer.
struct WalkedHub
{
    QString address;
    QString label;
    QString macAddress;
    std::optional<int> before;   ///< what was active before the walk
    std::optional<int> restored; ///< what was active after it
    bool isBack = false;         ///< false for a hub that the walk names as not back
};

/// A layout as a walk found it.
struct WalkedLayout
{
    int number = 0;
    QString rooms;
    bool isReached = false;                     ///< whether it was recalled at all
    QHash<QString, std::optional<int>> presets; ///< what was read back, by the hub's address
};

/// What came of a walk.
struct WalkReading
{
    QDateTime begun; ///< local time of whoever walked
    QList<WalkedHub> hubs;
    QList<WalkedLayout> layouts;
    QString fault; ///< place and reason; empty when the text was read
};

/// Reads what `walk -o` and `walk --json` wrote. Keys that it does not need may be anything: later
/// versions may write more of them.
WalkReading readWalkJson(const QByteArray& text);
