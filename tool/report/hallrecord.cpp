#include "hallrecord.h"

#include "hallfaults.h"

#include <algorithm>

namespace {

constexpr qsizetype maxNamed = 5;

QString strangersLine(const QString& origin, const QStringList& strangers)
{
    QString named = strangers.first(std::min(strangers.size(), maxNamed)).join(u", ");
    if (strangers.size() > maxNamed) {
        named += QStringLiteral(" and %1 more").arg(strangers.size() - maxNamed);
    }
    return QStringLiteral("%1 tells of devices that the hall has not; they are left out: %2")
        .arg(origin, named);
}

} // namespace

QStringList recordFaults(const HallRecord& record)
{
    QStringList faults = brokenLimits(*record.hall);
    if (record.found) {
        faults += record.found->remarks();
    }
    if (record.walk && !record.walk->isOfThisHall()) {
        faults.append(QStringLiteral("the walk was one through another hall"));
    } else if (record.walk) {
        faults += record.walk->contradictions();
    }
    return faults;
}

QStringList walkFailures(const HallRecord& record)
{
    QStringList failures;
    if (!record.walk || !record.walk->isOfThisHall()) {
        return failures;
    }
    if (!record.walk->isEverywhereOk()) {
        failures.append(QStringLiteral("the walk: not every layout was read back from every hub"));
    }
    if (!record.walk->notBack().isEmpty()) {
        failures.append(QStringLiteral("the walk: not every hub was put back afterwards"));
    }
    return failures;
}

QStringList leftOut(const HallRecord& record)
{
    QStringList lines;
    if (record.found && !record.found->strangers().isEmpty()) {
        lines.append(strangersLine(QStringLiteral("the search"), record.found->strangers()));
    }
    if (record.walk && !record.walk->strangers().isEmpty()) {
        lines.append(strangersLine(QStringLiteral("the walk"), record.walk->strangers()));
    }
    return lines;
}
