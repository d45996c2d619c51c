#pragma once

#include <QString>

/// The keys of what commands find out about devices and hubs, as JSON: each written once, so that
/// the same thing has the same name in all of them, and whoever reads such a result back follows
/// them.
namespace ResultKey {

inline QString address()
{
    return QStringLiteral("address");
}
inline QString label()
{
    return QStringLiteral("label");
}
inline QString mac()
{
    return QStringLiteral("mac");
}
inline QString preset()
{
    return QStringLiteral("preset");
}
inline QString ok()
{
    return QStringLiteral("ok");
}
inline QString hubs()
{
    return QStringLiteral("hubs");
}
inline QString layout()
{
    return QStringLiteral("layout");
}
inline QString layouts()
{
    return QStringLiteral("layouts");
}
inline QString number()
{
    return QStringLiteral("number");
}
inline QString rooms()
{
    return QStringLiteral("rooms");
}
inline QString reached()
{
    return QStringLiteral("reached");
}
inline QString begun()
{
    return QStringLiteral("begun");
}
inline QString before()
{
    return QStringLiteral("before");
}
inline QString restored()
{
    return QStringLiteral("restored");
}
inline QString back()
{
    return QStringLiteral("back");
}
inline QString interface()
{
    return QStringLiteral("interface");
}
inline QString name()
{
    return QStringLiteral("name");
}
inline QString mask()
{
    return QStringLiteral("mask");
}
inline QString rivals()
{
    return QStringLiteral("rivals");
}
inline QString devices()
{
    return QStringLiteral("devices");
}
inline QString probes()
{
    return QStringLiteral("probes");
}
inline QString model()
{
    return QStringLiteral("model");
}
inline QString firmware()
{
    return QStringLiteral("firmware");
}
inline QString serial()
{
    return QStringLiteral("serial");
}
inline QString id()
{
    return QStringLiteral("id");
}
inline QString verdict()
{
    return QStringLiteral("verdict");
}
inline QString reason()
{
    return QStringLiteral("reason");
}
inline QString needs()
{
    return QStringLiteral("needs");
}
inline QString other()
{
    return QStringLiteral("other");
}
inline QString result()
{
    return QStringLiteral("result");
}

} // namespace ResultKey
