#include "acceptancerule.h"

#include "devicecatalogue.h"

#include <QList>
#include <optional>

namespace {

QStringView fromFirstDigit(QStringView part)
{
    while (!part.isEmpty() && !part.front().isDigit()) {
        part = part.sliced(1);
    }
    return part;
}

/// The first `count` parts of a version; nothing when there are fewer or one is no number.
std::optional<QList<int>> firstNumbers(QStringView version, qsizetype count)
{
    QList<QStringView> parts = version.split(u'.');
    if (parts.size() < count) {
        return std::nullopt;
    }
    parts.first() = fromFirstDigit(parts.first());
    QList<int> numbers;
    for (qsizetype i = 0; i < count; ++i) {
        bool ok = false;
        numbers.append(parts.at(i).toInt(&ok));
        if (!ok) {
            return std::nullopt;
        }
    }
    return numbers;
}

} // namespace

bool isDeviceAccepted(QStringView version, QStringView model)
{
    const DeviceModel* known = findModel(model);
    if (known == nullptr) {
        return false;
    }
    const qsizetype parts = known->minFirmware.count(u'.') + 1;
    // What is no version comes before every version.
    return firstNumbers(version, parts) >= firstNumbers(known->minFirmware, parts);
}
