#include "walkfindings.h"

#include "documentdata.h"
#include "hallhubs.h"
#include "roomgroup.h"

#include <algorithm>
#include <utility>

namespace {

QString notWalked()
{
    return QStringLiteral("not walked");
}

/// Why a hub is not back on what was active before the walk.
QString notBackWords(const WalkedHub& hub)
{
    return hub.before
               ? QStringLiteral("preset %1 was active before and is not again: %2")
                     .arg(QString::number(*hub.before), readBackWords(hub.restored, *hub.before))
               : QStringLiteral("which preset was active before could not be read");
}

bool areSameRooms(const QString& one, const QString& other)
{
    return layoutText(combinedRoomsIn(one)) == layoutText(combinedRoomsIn(other));
}

bool isSameDevice(const WalkedHub& walked, const DeviceData& hub)
{
    return walked.macAddress.isEmpty() || hub.macAddress.isEmpty() ||
           walked.macAddress.compare(hub.macAddress, Qt::CaseInsensitive) == 0;
}

template <typename Item, typename Test>
const Item* firstOf(const QList<Item>& items, Test test)
{
    const auto found = std::find_if(items.begin(), items.end(), test);
    return found != items.end() ? &*found : nullptr;
}

const WalkedLayout* numbered(const QList<WalkedLayout>& layouts, int number)
{
    return firstOf(layouts, [number](const WalkedLayout& one) { return one.number == number; });
}

const WalkedHub* addressed(const QList<WalkedHub>& hubs, const QString& address)
{
    return firstOf(hubs, [&address](const WalkedHub& one) { return one.address == address; });
}

} // namespace

WalkFindings::WalkFindings(const DocumentData& hall, const WalkReading& walk)
    : m_walk(walk)
{
    compareLayouts(hall.scenes);
    compareHubs(hall);
    count(hall);
}

QString WalkFindings::words(const SceneInfo& layout, const DeviceData& hub) const
{
    const WalkedLayout* const there = walked(layout);
    if (there == nullptr || walked(hub) == nullptr || !there->presets.contains(hub.ipAddress)) {
        return notWalked();
    }
    return there->isReached ? readBackWords(there->presets.value(hub.ipAddress), layout.number)
                            : QStringLiteral("not tried");
}

bool WalkFindings::isRight() const
{
    return m_isEverywhereOk && m_notBack.isEmpty() && m_contradictions.isEmpty();
}

/// The same layout as it was walked; null when none was.
const WalkedLayout* WalkFindings::walked(const SceneInfo& layout) const
{
    const WalkedLayout* const there = numbered(m_walk.layouts, layout.number);
    return there != nullptr && areSameRooms(there->rooms, layout.roomGroup) ? there : nullptr;
}

/// The same hub as it was walked; null when it was not.
const WalkedHub* WalkFindings::walked(const DeviceData& hub) const
{
    const WalkedHub* const there = addressed(m_walk.hubs, hub.ipAddress);
    return there != nullptr && isSameDevice(*there, hub) ? there : nullptr;
}

bool WalkFindings::isAnyWalked(const QList<DeviceData>& hubs) const
{
    return std::any_of(hubs.begin(), hubs.end(),
                       [this](const DeviceData& hub) { return walked(hub) != nullptr; });
}

void WalkFindings::compareLayouts(const QList<SceneInfo>& layouts)
{
    for (const SceneInfo& layout : layouts) {
        const WalkedLayout* const there = numbered(m_walk.layouts, layout.number);
        if (there == nullptr) {
            m_contradictions.append(QStringLiteral("layout %1 was not walked").arg(layout.number));
        } else if (walked(layout) == nullptr) {
            m_contradictions.append(
                QStringLiteral("layout %1 was %2 when it was walked, and is %3")
                    .arg(QString::number(layout.number), there->rooms, layout.roomGroup));
        }
    }
    for (const WalkedLayout& there : std::as_const(m_walk.layouts)) {
        if (firstOf(layouts, [&](const SceneInfo& one) { return one.number == there.number; }) ==
            nullptr) {
            m_contradictions.append(
                QStringLiteral("layout %1 (%2) was walked, and the hall has none of this number")
                    .arg(QString::number(there.number), there.rooms));
        }
    }
}

void WalkFindings::compareHubs(const DocumentData& hall)
{
    const QList<DeviceData> hubs = placedHubs(hall);
    for (const DeviceData& hub : hubs) {
        const WalkedHub* const there = addressed(m_walk.hubs, hub.ipAddress);
        if (there == nullptr) {
            m_contradictions.append(QStringLiteral("%1 was not walked").arg(hubName(hub)));
        } else if (walked(hub) == nullptr) {
            m_contradictions.append(
                QStringLiteral("%1 was another device when it was walked, with the MAC address %2")
                    .arg(hubName(hub), there->macAddress));
        } else if (!there->isBack) {
            m_notBack.append(hubName(hub) + QStringLiteral(": ") + notBackWords(*there));
        }
    }
    const QStringList addresses = addressesOf(hubs);
    for (const WalkedHub& hub : std::as_const(m_walk.hubs)) {
        if (!addresses.contains(hub.address)) {
            m_strangers.append(hub.address);
        }
    }
}

/// Counts what the walk says of the hall as it is now.
void WalkFindings::count(const DocumentData& hall)
{
    qsizetype walkedCount = 0;
    qsizetype okCount = 0;
    const QList<DeviceData> hubs = placedHubs(hall);
    for (const SceneInfo& layout : hall.scenes) {
        for (const DeviceData& hub : hubs) {
            const QString outcome = words(layout, hub);
            walkedCount += outcome != notWalked() ? 1 : 0;
            okCount += outcome == readBackWords(layout.number, layout.number) ? 1 : 0;
        }
    }
    // Where there are no layouts, or none any more, its hubs tell.
    m_isOfThisHall = walkedCount > 0 || (hall.scenes.isEmpty() && isAnyWalked(hubs));
    m_isEverywhereOk = m_isOfThisHall && okCount == hall.scenes.size() * hubs.size();
}
