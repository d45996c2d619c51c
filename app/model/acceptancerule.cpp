#include "acceptancerule.h"

#include <QList>
#include <optional>

namespace {

bool isKnownModel(QStringView model)
{
    return model.startsWith(u"PX-") || model == u"LQA4-08S" || model == u"DSK4M" ||
           model == u"PNB-QE7";
}

std::optional<int> toNumber(QStringView text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

QStringView firstPart(QStringView version)
{
    const qsizetype dot = version.indexOf(u'.');
    return dot < 0 ? version : version.first(dot);
}

std::optional<int> majorNumber(QStringView part)
{
    while (!part.isEmpty() && !part.front().isDigit()) {
        part = part.sliced(1);
    }
    return toNumber(part);
}

bool isAccessPointVersionAccepted(int major, QStringView version)
{
    const QList<QStringView> parts = version.split(u'.');
    if (parts.size() < 3) {
        return false;
    }
    const std::optional<int> minor = toNumber(parts.at(1));
    const std::optional<int> patch = toNumber(parts.at(2));
    if (!minor || !patch || major < 1) {
        return false;
    }
    return major > 1 || *minor > 9 || (*minor == 9 && *patch >= 3);
}

} // namespace

bool isDeviceAccepted(QStringView version, QStringView model)
{
    if (version.isEmpty() || !isKnownModel(model)) {
        return false;
    }
    const std::optional<int> major = majorNumber(firstPart(version));
    if (!major) {
        return false;
    }
    return model.startsWith(u"PX-NDE") ? isAccessPointVersionAccepted(*major, version)
                                       : *major >= 2;
}
