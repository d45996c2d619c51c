#include "comparison.h"

#include <array>

namespace {

struct PairText
{
    const char* row;
    const char* what;
    const char* unit;
    double aim;
};

// Ours beside the floor.
constexpr std::array pairs = {
    PairText{"startoffscreen", "start to first painted page, offscreen", "ms", 1.10},
    PairText{"startoffscreenmemory", "peak memory at that moment, offscreen", "MiB", 1.15},
    PairText{"startxcb", "start to first painted page, xcb", "ms", 1.10},
    PairText{"startxcbmemory", "peak memory at that moment, xcb", "MiB", 1.15},
    PairText{"identify250", "identify 250 devices at once", "ms", 1.3},
    PairText{"identify1000", "identify 1,000 devices at once", "ms", 1.3},
    PairText{"identify250wall", "250 devices, by the clock on the wall", "ms", 1.3},
    PairText{"datagrams", "250 datagrams parsed and entered", "ms", 3},
    PairText{"transfer1", "one hub's transfer, 10 layouts of 16 peripherals", "ms", 1.5},
    PairText{"transfer1wall", "one hub's transfer, by the clock on the wall", "ms", 1.5},
    PairText{"transfer4", "four hubs' transfers at once", "ms", 1.5},
    PairText{"presetfiles", "preset files, 10 layouts × 4 hubs × 24 peripherals", "ms", 2},
    PairText{"combo", "one changed room combo of 250", "ms", 2},
    PairText{"reset", "Reset of 250 devices", "ms", 2},
    PairText{"stroke", "stroke of 64 moves, each painted", "ms", 3},
    PairText{"save", "save, 250 devices, 10 layouts", "ms", 2},
    PairText{"savewall", "the same with the wait for the disk", "ms", 2},
    PairText{"load", "load, 250 devices, 10 layouts", "ms", 2},
};

constexpr double pageAim = 1.5;
// Four times the devices, and a little for what the caches no longer hold.
constexpr double growthAim = 4.8;
constexpr int firstPage = 2;
constexpr int lastPage = 8;

const auto ours = QStringLiteral("/ours");
const auto floorSide = QStringLiteral("/floor");

Comparison growth(const QString& what, const QString& large, const QString& small, double aim)
{
    return {what, QStringLiteral("ms"), large + ours, small + ours, aim};
}

QString pageRow(int page, int devices)
{
    return QStringLiteral("page%1x%2").arg(page).arg(devices);
}

void appendPages(QList<Comparison>& rows)
{
    for (int page = firstPage; page <= lastPage; ++page) {
        for (const int devices : {250, 1000}) {
            const QString row = pageRow(page, devices);
            rows.append({QStringLiteral("step %1 entered, %2 devices").arg(page).arg(devices),
                         QStringLiteral("ms"), row + ours, row + floorSide, pageAim});
        }
        rows.append(growth(QStringLiteral("step %1: 1,000 to 250 devices").arg(page),
                           pageRow(page, 1000), pageRow(page, 250), growthAim));
    }
}

} // namespace

QList<Comparison> allComparisons()
{
    QList<Comparison> rows;
    for (const PairText& pair : pairs) {
        const QString row = QString::fromLatin1(pair.row);
        rows.append({QString::fromUtf8(pair.what), QString::fromLatin1(pair.unit), row + ours,
                     row + floorSide, pair.aim});
    }
    rows.append(growth(QStringLiteral("identify: 1,000 to 250 devices"),
                       QStringLiteral("identify1000"), QStringLiteral("identify250"), 5));
    rows.append(growth(QStringLiteral("transfer: four hubs to one"), QStringLiteral("transfer4"),
                       QStringLiteral("transfer1"), 4.2));
    appendPages(rows);
    rows.append({QStringLiteral("longest stall of the event loop in a whole run"),
                 QStringLiteral("ms"),
                 QStringLiteral("stall/ours"),
                 {},
                 30});
    return rows;
}
