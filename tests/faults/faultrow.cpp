#include "faultrow.h"

#include "faulttable.h"
#include "hall.h"
#include "quickhall.h"

#include <QTest>

#include <algorithm>

namespace {

constexpr int hubCount = 4;
constexpr int moreThanPatience = 31;
const QString othersDone = QStringLiteral(" Done Done Done");

HallDescription describe(const QString& base, Exchange exchange)
{
    HallDescription description = quickHall(base, hubCount, 1);
    if (exchange == Exchange::SetPassword) {
        description.hubs.first().password.reset();
    }
    return description;
}

/// What a hub holds: for each preset whose files, and which was recalled.
QString heldBy(const SimulatedHub& hub)
{
    QStringList parts;
    const auto& presets = hub.presets();
    for (auto preset = presets.begin(); preset != presets.end(); ++preset) {
        QStringList files;
        for (const QString& storage : preset->files.keys()) {
            const bool isOwn = storage == hub.hubDescription().storageName();
            files.append(isOwn ? QStringLiteral("hub") : QStringLiteral("device"));
        }
        files.sort(Qt::CaseInsensitive);
        std::reverse(files.begin(), files.end());
        parts.append(QStringLiteral("%1: %2").arg(QString::number(preset.key()),
                                                  files.isEmpty() ? QStringLiteral("no file")
                                                                  : files.join(u' ')));
    }
    if (hub.recalledPreset() != 0) {
        parts.append(QStringLiteral("recalled %1").arg(hub.recalledPreset()));
    }
    return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QStringLiteral(", "));
}

QString statusesOf(const FaultFace& face)
{
    QStringList statuses;
    for (int hub = 0; hub < hubCount; ++hub) {
        statuses.append(face.status(hub));
    }
    return statuses.join(u' ');
}

} // namespace

void addFaultRows(const QList<Exchange>& exchanges)
{
    QTest::addColumn<Exchange>("exchange");
    QTest::addColumn<int>("fault");
    for (const Exchange exchange : exchanges) {
        for (int fault = 0; fault < replyFaults().size(); ++fault) {
            QTest::addRow("%s, %s", qPrintable(exchangeName(exchange)),
                          replyFaults().at(fault).name)
                << exchange << fault;
        }
    }
}

void carryOutFaultRow(const QString& base, const FaultFaceMaker& makeFace)
{
    QFETCH(const Exchange, exchange);
    QFETCH(const int, fault);
    const ReplyFault& row = replyFaults().at(fault);
    const FaultOutcome expected = expectedOutcome(exchange, row);
    const std::unique_ptr<FaultFace> face = makeFace(describe(base, exchange));
    const SimulatedHub* hub = face->hall().hubs().first();
    for (Fault part : row.faults) {
        part.exchange = exchange;
        face->hall().hubs().first()->setFault(part);
    }
    face->giveUpAfter(maxAnswers);

    face->install();
    if (row.hearing == Hearing::Lost) {
        face->waitUntilQuiet();
        QCOMPARE(face->status(0), QStringLiteral("Installing..."));
        QVERIFY(!hub->exchangeNames().isEmpty());
        QCOMPARE(hub->exchangeNames().last(), exchangeName(exchange));
        QCOMPARE(face->endCount(), 0);
        face->passSeconds(moreThanPatience);
    }
    QVERIFY(face->waitUntilOver());
    QCOMPARE(statusesOf(*face), expected.status + othersDone);
    QCOMPARE(face->endCount(), expected.finished);
    QCOMPARE(heldBy(*hub), expected.held);
    QCOMPARE(face->promptCount(), expected.prompts);

    if (expected.status != u"Done") {
        QVERIFY2(face->reason(0).contains(u": "), qPrintable(face->reason(0)));
        face->hall().clearFaults();
        face->giveUpAfter(expected.prompts + maxAnswers);
        face->install();
        QVERIFY(face->waitUntilOver());
    }
    QCOMPARE(statusesOf(*face), QStringLiteral("Done") + othersDone);
    QCOMPARE(heldBy(*hub), expectedOutcome(exchange, {"", {}, Hearing::Good}).held);
}
