#pragma once

#include "walkjson.h"

#include <QStringList>

struct DeviceData;
struct DocumentData;
struct SceneInfo;

/// What a walk has told about the layouts of a hall. Only what was walked as the hall is now
/// counts: layouts of the same number and rooms, hubs of the same address and MAC address.
class WalkFindings
{
public:
    WalkFindings(const DocumentData& hall, const WalkReading& walk);

    /// Local time of whoever walked.
    const QDateTime& begun() const { return m_walk.begun; }

    /// What was read back from a hub for a layout of the hall, in words; "ok" when it was there.
    QString words(const SceneInfo& layout, const DeviceData& hub) const;

    /// Whether every layout was read back from every hub and all were put back afterwards.
    bool isRight() const;

    /// Whether every layout was read back from every hub.
    bool isEverywhereOk() const { return m_isEverywhereOk; }

    /// Whether anything of the hall was walked; if not it was the walk of another hall.
    bool isOfThisHall() const { return m_isOfThisHall; }

    /// In what the hall differs from the one that was walked, a line each.
    const QStringList& contradictions() const { return m_contradictions; }

    /// The hubs that were not put back on what was active before, a line each.
    const QStringList& notBack() const { return m_notBack; }

    /// The addresses of hubs that were walked and are not in the hall.
    const QStringList& strangers() const { return m_strangers; }

private:
    const WalkedLayout* walked(const SceneInfo& layout) const;
    const WalkedHub* walked(const DeviceData& hub) const;
    bool isAnyWalked(const QList<DeviceData>& hubs) const;
    void compareLayouts(const QList<SceneInfo>& layouts);
    void compareHubs(const DocumentData& hall);
    void count(const DocumentData& hall);

    WalkReading m_walk;
    bool m_isOfThisHall = false;
    bool m_isEverywhereOk = false;
    QStringList m_contradictions;
    QStringList m_notBack;
    QStringList m_strangers;
};
