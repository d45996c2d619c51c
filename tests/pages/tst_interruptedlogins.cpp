#include "installhall.h"
#include "installwatch.h"
#include "pagefixtures.h"
#include "presetfilesender.h"
#include "senderclock.h"
#include "testcase.h"

#include <QPushButton>
#include <QTest>

/// What comes between the log-ins of several hubs, and that the next try finds nothing left of it.
class TestInterruptedLogIns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void twoOpenDialogsAreAnsweredOrCancelledEachForItsOwnHub_data();
    void twoOpenDialogsAreAnsweredOrCancelledEachForItsOwnHub();
    void aHubThatRestartsBetweenLogInAndTransferEndsAsError_data();
    void aHubThatRestartsBetweenLogInAndTransferEndsAsError();
    void aHubThatRefusesConnectionsEndsAsError();
    void everyCancelledHubCanBeTriedAgain();
};

namespace {

const QString base = QStringLiteral("127.70.6.1");
constexpr int moreThanPatience = 31;
constexpr int slowMs = 200;
constexpr int longDeafMs = 600000;

/// "Execute" again, now that all is well.
void tryAgain(const InstallHall& step)
{
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
    press(step.execute());
    QVERIFY(waitUntilOver(step.page));
    QVERIFY2(!step.statuses().contains(QLatin1String("Error")), qPrintable(step.statuses()));
    QCOMPARE(step.execute()->text(), QStringLiteral("Next"));
    for (const SimulatedHub* hub : step.hall.hubs()) {
        QCOMPARE(hub->presets().size(), 2);
        QCOMPARE(hub->recalledPreset(), 1);
    }
}

QString outcome(bool cancelled)
{
    return cancelled ? QStringLiteral("Error") : QStringLiteral("Done");
}

} // namespace

void TestInterruptedLogIns::twoOpenDialogsAreAnsweredOrCancelledEachForItsOwnHub_data()
{
    QTest::addColumn<int>("lower");
    QTest::addColumn<bool>("isLowerCancelled");
    QTest::addColumn<bool>("isUpperCancelled");
    for (const int lower : {1, 2}) {
        for (const bool isUpperCancelled : {false, true}) {
            for (const bool isLowerCancelled : {false, true}) {
                QTest::addRow("that of hub %d is %s, then that of hub %d is %s", 3 - lower,
                              isUpperCancelled ? "cancelled" : "answered", lower,
                              isLowerCancelled ? "cancelled" : "answered")
                    << lower << isLowerCancelled << isUpperCancelled;
            }
        }
    }
}

void TestInterruptedLogIns::twoOpenDialogsAreAnsweredOrCancelledEachForItsOwnHub()
{
    QFETCH(const int, lower);
    QFETCH(const bool, isLowerCancelled);
    QFETCH(const bool, isUpperCancelled);
    const int upper = 3 - lower;
    InstallHall step(base, 2);
    step.setFault(upper, {.exchange = Exchange::Token, .kind = FaultKind::Slow, .number = slowMs});
    if (isLowerCancelled) {
        step.answers.cancel(step.address(lower));
    }
    if (isUpperCancelled) {
        step.answers.cancel(step.address(upper));
    }
    qsizetype transfers = -1;
    step.answers.hold(
        step.address(lower),
        [&] { return step.status(upper) == u"Error" || step.hub(upper)->logInCount() == 1; },
        [&] { transfers = timesAsked(*step.hub(upper), Exchange::StartExport); });
    press(step.execute());
    QVERIFY(waitUntilOver(step.page));
    QCOMPARE(step.answers.prompts(), (QStringList{step.address(upper), step.address(lower)}));
    QCOMPARE(transfers, 0);
    QCOMPARE(step.status(lower), outcome(isLowerCancelled));
    QCOMPARE(step.status(upper), outcome(isUpperCancelled));
    QCOMPARE(step.hub(lower)->presets().isEmpty(), isLowerCancelled);
    QCOMPARE(step.hub(upper)->presets().isEmpty(), isUpperCancelled);
    if (isLowerCancelled || isUpperCancelled) {
        tryAgain(step);
    }
}

void TestInterruptedLogIns::aHubThatRestartsBetweenLogInAndTransferEndsAsError_data()
{
    QTest::addColumn<int>("deafMs");
    QTest::newRow("and is back at once") << 0;
    QTest::newRow("and is away for long") << longDeafMs;
}

void TestInterruptedLogIns::aHubThatRestartsBetweenLogInAndTransferEndsAsError()
{
    QFETCH(const int, deafMs);
    InstallHall step(base, 4);
    step.answers.hold(
        step.address(2), [&] { return step.hub(1)->logInCount() == 1; },
        [&] { step.hub(1)->reboot(deafMs); });
    // The held dialog comes first, so that the log-ins of the others happen over it.
    for (const int hub : {1, 3, 4}) {
        step.setFault(hub,
                      {.exchange = Exchange::Token, .kind = FaultKind::Slow, .number = slowMs});
    }
    press(step.execute());
    QTRY_COMPARE(step.statuses().count(QLatin1String("Done")), 3);
    if (deafMs != 0) {
        QCOMPARE(step.status(1), QStringLiteral("Installing..."));
        passSeconds(senderOf(step.page, step.address(1)), moreThanPatience);
    }
    QVERIFY(waitUntilOver(step.page));
    QCOMPARE(step.statuses(), QStringLiteral("Error Done Done Done"));
    QVERIFY(step.hub(1)->presets().isEmpty());
    step.hub(1)->reboot(0);
    waitUntilQuiet(step);
    tryAgain(step);
}

void TestInterruptedLogIns::aHubThatRefusesConnectionsEndsAsError()
{
    InstallHall step(base, 4);
    step.setFault(1, {.kind = FaultKind::RefuseHttp});
    press(step.execute());
    waitUntilQuiet(step);
    QCOMPARE(step.statuses(),
             QStringLiteral("Installing... Installing... Installing... Installing..."));
    passSeconds(senderOf(step.page, step.address(1)), moreThanPatience);
    QVERIFY(waitUntilOver(step.page));
    QCOMPARE(step.statuses(), QStringLiteral("Error Done Done Done"));
    step.hall.clearFaults();
    tryAgain(step);
}

void TestInterruptedLogIns::everyCancelledHubCanBeTriedAgain()
{
    InstallHall step(base, 3);
    for (const int hub : {1, 2, 3}) {
        step.answers.cancel(step.address(hub));
    }
    press(step.execute());
    QVERIFY(waitUntilOver(step.page));
    QCOMPARE(step.statuses(), QStringLiteral("Error Error Error"));
    tryAgain(step);
}

TESSEL_TEST_MAIN(TestInterruptedLogIns)
#include "tst_interruptedlogins.moc"
