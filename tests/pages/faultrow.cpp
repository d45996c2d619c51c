#include "faultrow.h"

#include "faulttable.h"
#include "installhall.h"
#include "installwatch.h"
#include "pagefixtures.h"
#include "presetfilesender.h"
#include "senderclock.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

constexpr int hubCount = 4;
constexpr int faultyHub = 1;
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

void carryOutFaultRow(const QString& base)
{
    QFETCH(const Exchange, exchange);
    QFETCH(const int, fault);
    const ReplyFault& row = replyFaults().at(fault);
    const FaultOutcome expected = expectedOutcome(exchange, row);
    InstallHall step(describe(base, exchange));
    const SimulatedHub* hub = step.hub(faultyHub);
    for (Fault part : row.faults) {
        part.exchange = exchange;
        step.setFault(faultyHub, part);
    }
    step.answers.giveUpAfter(step.address(faultyHub), maxAnswers);

    press(step.execute());
    PresetFileSender* sender = senderOf(step.page, step.address(faultyHub));
    QVERIFY(sender);
    const QSignalSpy finished(sender, SIGNAL(finished(QString, int)));
    if (row.hearing == Hearing::Lost) {
        waitUntilQuiet(step);
        QCOMPARE(step.status(faultyHub), QStringLiteral("Installing..."));
        QVERIFY(!hub->exchangeNames().isEmpty());
        QCOMPARE(hub->exchangeNames().last(), exchangeName(exchange));
        QCOMPARE(finished.size(), 0);
        passSeconds(sender, moreThanPatience);
    }
    QVERIFY(waitUntilOver(step.page));
    QCOMPARE(step.statuses(), expected.status + othersDone);
    QCOMPARE(finished.size(), expected.finished);
    QCOMPARE(heldBy(*hub), expected.held);
    QCOMPARE(step.answers.prompts().count(step.address(faultyHub)), expected.prompts);

    if (expected.status != u"Done") {
        step.hall.clearFaults();
        step.answers.giveUpAfter(step.address(faultyHub), expected.prompts + maxAnswers);
        press(step.execute());
        QVERIFY(waitUntilOver(step.page));
    }
    QCOMPARE(step.statuses(), QStringLiteral("Done") + othersDone);
    QCOMPARE(step.execute()->text(), QStringLiteral("Next"));
    QCOMPARE(heldBy(*hub), expectedOutcome(exchange, {"", {}, Hearing::Good}).held);
}
