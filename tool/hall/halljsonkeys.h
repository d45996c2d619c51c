#pragma once

#include <QString>

/// The keys of a hall as JSON, each written once: writing and reading both follow them.
namespace HallJsonKey {

inline QString version()
{
    return QStringLiteral("tessel");
}
inline QString step()
{
    return QStringLiteral("step");
}
inline QString window()
{
    return QStringLiteral("window");
}
inline QString width()
{
    return QStringLiteral("width");
}
inline QString height()
{
    return QStringLiteral("height");
}
inline QString rooms()
{
    return QStringLiteral("rooms");
}
inline QString devices()
{
    return QStringLiteral("devices");
}
inline QString label()
{
    return QStringLiteral("label");
}
inline QString address()
{
    return QStringLiteral("address");
}
inline QString mac()
{
    return QStringLiteral("mac");
}
inline QString model()
{
    return QStringLiteral("model");
}
inline QString room()
{
    return QStringLiteral("room");
}
inline QString renamed()
{
    return QStringLiteral("renamed");
}
inline QString layouts()
{
    return QStringLiteral("layouts");
}
inline QString number()
{
    return QStringLiteral("number");
}
inline QString combined()
{
    return QStringLiteral("combined");
}
inline QString presetName()
{
    return QStringLiteral("preset-name");
}
inline QString removed()
{
    return QStringLiteral("removed");
}
inline QString right()
{
    return QStringLiteral("right");
}
inline QString exact()
{
    return QStringLiteral("exact");
}
inline QString cells()
{
    return QStringLiteral("cells");
}
inline QString picture()
{
    return QStringLiteral("picture");
}
inline QString sets()
{
    return QStringLiteral("sets");
}
inline QString set()
{
    return QStringLiteral("set");
}
inline QString layout()
{
    return QStringLiteral("layout");
}
inline QString side()
{
    return QStringLiteral("side");
}
inline QString presets()
{
    return QStringLiteral("presets");
}
inline QString name()
{
    return QStringLiteral("name");
}
inline QString notChosen()
{
    return QStringLiteral("not-chosen");
}

} // namespace HallJsonKey

/// The version of the format, to be raised when a reader of the former one would misunderstand.
inline constexpr int hallJsonVersion = 1;
