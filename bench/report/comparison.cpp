#include "comparison.h"

#include <array>

namespace {

struct Text
{
    ComparisonKind kind;
    const char* row; ///< of a growth: the one with more work
    const char* less;
    const char* what;
    const char* unit;
    double aim;
};

constexpr auto pair = ComparisonKind::Pair;
constexpr auto growth = ComparisonKind::Growth;
constexpr auto value = ComparisonKind::Value;

// clang-format off
constexpr std::array texts = {
    Text{pair, "startoffscreen", "", "start to first painted page, offscreen", "ms", 1.10},
    Text{pair, "startoffscreenmemory", "", "peak memory at that moment, offscreen", "MiB", 1.15},
    Text{pair, "startxcb", "", "start to first painted page, xcb", "ms", 1.10},
    Text{pair, "startxcbmemory", "", "peak memory at that moment, xcb", "MiB", 1.15},
    Text{pair, "toolversion", "", "tesselctl --version", "ms", 1.20},
    Text{pair, "identify250", "", "identify 250 devices at once", "ms", 1.3},
    Text{pair, "identify1000", "", "identify 1,000 devices at once", "ms", 1.3},
    Text{growth, "identify1000", "identify250", "growth: identify, 250 to 1,000 devices", "", 1.1},
    Text{pair, "datagrams", "", "250 datagrams parsed and entered", "ms", 1.5},
    Text{pair, "transfer1", "", "one hub's transfer, 10 layouts of 16 peripherals", "ms", 1.2},
    Text{pair, "sockets", "", "the same beside bare sockets, for information", "ms", 0},
    Text{pair, "transfer4", "", "four hubs' transfers at once", "ms", 1.2},
    Text{growth, "transfer4", "transfer1", "growth: transfer, one hub to four", "", 1.1},
    Text{pair, "presetfiles", "", "preset files, 10 layouts × 4 hubs × 24 peripherals", "ms", 1.3},
    Text{pair, "combo", "", "one changed room combo of 250", "ms", 1.5},
    Text{pair, "reset", "", "Reset of 250 devices", "ms", 1.5},
    Text{pair, "stroke", "", "stroke of 64 moves, each painted", "ms", 3},
    Text{pair, "save", "", "save, 250 devices, 10 layouts", "ms", 2},
    Text{pair, "load", "", "load, 250 devices, 10 layouts", "ms", 2},
    Text{pair, "show", "", "tesselctl show, 250 devices, 10 layouts", "ms", 2},
    Text{pair, "page2x250", "", "step 2 entered", "ms", 1.5},
    Text{pair, "page3x250", "", "step 3 entered, 250 devices", "ms", 1.5},
    Text{pair, "page3x1000", "", "step 3 entered, 1,000 devices", "ms", 1.5},
    Text{growth, "page3x1000", "page3x250", "growth: step 3, 250 to 1,000 devices", "", 1.1},
    Text{pair, "page4x250", "", "step 4 entered", "ms", 1.5},
    Text{pair, "page5x250", "", "step 5 entered, 250 devices", "ms", 1.3},
    Text{pair, "page5x1000", "", "step 5 entered, 1,000 devices", "ms", 1.3},
    Text{growth, "page5x1000", "page5x250", "growth: step 5, 250 to 1,000 devices", "", 1.1},
    Text{pair, "page6x250", "", "step 6 entered, 250 devices", "ms", 1.5},
    Text{pair, "page6x1000", "", "step 6 entered, 1,000 devices", "ms", 1.5},
    Text{growth, "page6x1000", "page6x250", "growth: step 6, 250 to 1,000 devices", "", 1.1},
    Text{pair, "page7x250", "", "step 7 entered", "ms", 1.5},
    Text{pair, "page8x250", "", "step 8 entered", "ms", 1.5},
    Text{pair, "install", "", "whole installation, exports ready at the 4th poll: four hubs, one hub", "ms", 1.2},
    Text{value, "stallinstalling", "", "longest stall of the event loop while these four install", "ms", 30},
    Text{value, "stall", "", "longest stall of the event loop in a whole run of the wizard", "ms", 30},
};
// clang-format on

Comparison comparison(const Text& text)
{
    const QString row = QString::fromLatin1(text.row);
    const bool isGrowth = text.kind == growth;
    return {text.kind,
            QString::fromUtf8(text.what),
            QString::fromLatin1(text.unit),
            isGrowth ? row : oursOf(row),
            isGrowth ? QString::fromLatin1(text.less) : floorOf(row),
            text.aim};
}

} // namespace

QList<Comparison> allComparisons()
{
    QList<Comparison> rows;
    for (const Text& text : texts) {
        rows.append(comparison(text));
    }
    return rows;
}

QString oursOf(const QString& row)
{
    return row + QStringLiteral("/ours");
}

QString floorOf(const QString& row)
{
    return row + QStringLiteral("/floor");
}
