#include "devicetexts.h"

#include <QRegularExpression>

namespace {

bool matches(QStringView text, const QString& pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern))
        .match(text.toString())
        .hasMatch();
}

} // namespace

bool isIpv4Address(QStringView text)
{
    const QString part = QStringLiteral("(25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])");
    return matches(text, QStringLiteral("(%1\\.){3}%1").arg(part));
}

bool isDeviceAddress(QStringView text)
{
    constexpr int firstOfGroups = 224;
    const int network = text.left(text.indexOf(u'.')).toInt();
    return isIpv4Address(text) && network > 0 && network < firstOfGroups;
}

bool isMacAddress(QStringView text)
{
    // The second digit of an address of a group, or of all devices, is odd.
    return matches(text, QStringLiteral("[0-9A-Fa-f][02468ACEace](:[0-9A-Fa-f]{2}){5}")) &&
           text != u"00:00:00:00:00:00";
}

QString deviceNamePattern()
{
    return QStringLiteral(R"([A-Za-z0-9\-]+)");
}

bool isDeviceName(QStringView text)
{
    return text.size() <= maxDeviceNameLength && matches(text, deviceNamePattern());
}
