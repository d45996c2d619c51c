#include "hall.h"
#include "hallwalk.h"
#include "presetcommandsenders.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString first = QStringLiteral("127.31.1.1");
const QString second = QStringLiteral("127.31.1.2");

// So long a wait ends a test as failed; where a hub never answers, a short one is enough.
constexpr int patienceMs = 20000;
constexpr int shortMs = 500;

// So long that nothing comes of it while a test runs.
constexpr int endlessMs = 600000;

/// Peripherals stand for hubs: they follow the recall of every number.
HallDescription twoDevices()
{
    return *HallDescription::byCounts(0, 2, first);
}

HallWalk::Reading both(int number)
{
    return {{first, number}, {second, number}};
}

/// What the first device was told and asked so far.
qsizetype recallCount(const Hall& hall)
{
    return hall.device(first)->exchangeNames().count(QStringLiteral("recall-command"));
}

qsizetype questionCount(const Hall& hall)
{
    return hall.device(first)->exchangeNames().count(QStringLiteral("current-preset"));
}

} // namespace

/// A walk through the layouts over real sockets.
class TestHallWalk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLayoutIsRecalledAndReadBackOnEveryHub();
    void afterwardsTheHubsAreOnTheirEarlierPresets();
    void hubOnNoPresetBeforeIsLeftOnTheLastLayout();
    void recallThatIsOnlyConfirmedDoesNotCount();
    void refusedRecallShowsThePresetBefore();
    void hubThatNeverAnswersHoldsUpNobodyElse();
    void hubThatRefusesConnectionsIsAskedAgain();
    void hubThatIsSlowIsAskedAgainUntilItIsThere();
    void presetFromBeforeIsLeftAloneUntilItHasSettled();
    void stoppingRestoresWithoutTheOtherLayouts();
    void stoppingWaitsForTheLayoutThatIsLoading();
    void stoppingBeforeTheFirstLayoutRecallsNothing();
    void hallWhereNobodyAnswersIsLeftAlone();
};

#define START_HALL                                                                                 \
    Hall hall(twoDevices());                                                                       \
    QString error;                                                                                 \
    QVERIFY2(hall.start(&error), qPrintable(error))

#define RECALL_ON_BOTH(number)                                                                     \
    {                                                                                              \
        PresetRound round({first, second}, patienceMs, nullptr);                                   \
        QSignalSpy isSet(&round, SIGNAL(finished()));                                              \
        round.recall(both(number), 0);                                                             \
        QTRY_COMPARE_WITH_TIMEOUT(isSet.size(), 1, patienceMs);                                    \
        hall.device(first)->clearJournal();                                                        \
        hall.device(second)->clearJournal();                                                       \
    }

#define WALK(layouts, waitMs)                                                                      \
    HallWalk walk({first, second}, layouts, 0, waitMs);                                            \
    QSignalSpy over(&walk, SIGNAL(finished()));                                                    \
    walk.start();                                                                                  \
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs)

void TestHallWalk::everyLayoutIsRecalledAndReadBackOnEveryHub()
{
    START_HALL;
    HallWalk walk({first, second}, {1, 2, 3}, 0, patienceMs);
    QSignalSpy over(&walk, SIGNAL(finished()));
    QSignalSpy walked(&walk, SIGNAL(walked(int)));
    walk.start();
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    QCOMPARE(walked.size(), 3);
    QCOMPARE(walked.last().first().toInt(), 3);
    for (const int layout : {1, 2, 3}) {
        QCOMPARE(walk.read(layout).value_or(HallWalk::Reading()), both(layout));
    }
    QVERIFY(!walk.read(4));
    QVERIFY(!walk.isStopped());
    QCOMPARE(hall.differences(), QStringList());
}

void TestHallWalk::afterwardsTheHubsAreOnTheirEarlierPresets()
{
    START_HALL;
    for (const QString& address : {first, second}) {
        PresetRound round({address}, patienceMs, nullptr);
        QSignalSpy over(&round, SIGNAL(finished()));
        round.recall({{address, address == first ? 5 : 6}}, 0);
        QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    }
    WALK((QList{1, 2}), patienceMs);
    QCOMPARE(walk.before(), (HallWalk::Reading{{first, 5}, {second, 6}}));
    QCOMPARE(walk.restored(), walk.before());
    QCOMPARE(hall.device(first)->currentPreset(), 5);
    QCOMPARE(hall.device(second)->currentPreset(), 6);
}

void TestHallWalk::hubOnNoPresetBeforeIsLeftOnTheLastLayout()
{
    START_HALL;
    WALK((QList{1, 2}), patienceMs);
    QCOMPARE(walk.before(), both(0));
    QCOMPARE(walk.restored(), HallWalk::Reading());
    QCOMPARE(hall.device(first)->exchangeNames().count(QStringLiteral("recall-command")), 2);
}

void TestHallWalk::recallThatIsOnlyConfirmedDoesNotCount()
{
    START_HALL;
    hall.device(second)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect});
    WALK(QList{3}, shortMs);
    QCOMPARE(walk.read(3).value_or(HallWalk::Reading()),
             (HallWalk::Reading{{first, 3}, {second, 0}}));
}

void TestHallWalk::refusedRecallShowsThePresetBefore()
{
    START_HALL;
    hall.device(first)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::ErrorAnswer, .skip = 1});
    WALK((QList{1, 2}), shortMs);
    QCOMPARE(walk.read(2).value_or(HallWalk::Reading()),
             (HallWalk::Reading{{first, 1}, {second, 2}}));
}

void TestHallWalk::hubThatNeverAnswersHoldsUpNobodyElse()
{
    START_HALL;
    hall.device(first)->setFault(
        {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    WALK((QList{1, 2}), shortMs);
    QCOMPARE(walk.before(), (HallWalk::Reading{{second, 0}}));
    QCOMPARE(walk.read(1).value_or(HallWalk::Reading()), (HallWalk::Reading{{second, 1}}));
    QCOMPARE(walk.read(2).value_or(HallWalk::Reading()), (HallWalk::Reading{{second, 2}}));
}

void TestHallWalk::hubThatRefusesConnectionsIsAskedAgain()
{
    START_HALL;
    hall.device(first)->setFault({.kind = FaultKind::RefuseText});
    PresetRound round({first, second}, patienceMs, nullptr);
    QSignalSpy over(&round, SIGNAL(finished()));
    round.read();
    QTRY_VERIFY(round.preset(second));
    QVERIFY(!round.preset(first));
    hall.clearFaults();
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    QCOMPARE(round.preset(first).value_or(-1), 0);
}

void TestHallWalk::hubThatIsSlowIsAskedAgainUntilItIsThere()
{
    START_HALL;
    hall.device(first)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect, .times = 1});
    PresetRound round({first}, patienceMs, nullptr);
    QSignalSpy over(&round, SIGNAL(finished()));
    round.recall({{first, 4}}, 0);
    // Asked at once, and again when the hub said that it had recalled.
    const QString question = QStringLiteral("current-preset");
    QTRY_COMPARE(hall.device(first)->exchangeNames().count(question), 2);
    QVERIFY(round.preset(first) == 0);
    PresetRound other({first}, patienceMs, nullptr);
    other.recall({{first, 4}}, 0);
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    QCOMPARE(round.preset(first).value_or(-1), 4);
}

void TestHallWalk::presetFromBeforeIsLeftAloneUntilItHasSettled()
{
    START_HALL;
    RECALL_ON_BOTH(7);
    HallWalk walk({first, second}, {1}, endlessMs, patienceMs);
    const QSignalSpy over(&walk, SIGNAL(finished()));
    walk.start();
    QTRY_COMPARE(hall.device(first)->currentPreset(), 1);
    QTRY_COMPARE(hall.device(second)->currentPreset(), 1);
    walk.stop(); // the layout needs no more time, what follows does
    QTRY_COMPARE(hall.device(first)->currentPreset(), 7);
    const qsizetype asked = questionCount(hall);
    PresetRound stranger({first}, patienceMs, nullptr);
    QSignalSpy answered(&stranger, SIGNAL(finished()));
    stranger.read();
    QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 1, patienceMs);
    QCOMPARE(questionCount(hall), asked + 1);
    QCOMPARE(over.size(), 0);
}

void TestHallWalk::stoppingRestoresWithoutTheOtherLayouts()
{
    START_HALL;
    RECALL_ON_BOTH(7);
    HallWalk walk({first, second}, {1, 2, 3}, 0, patienceMs);
    QSignalSpy over(&walk, SIGNAL(finished()));
    connect(&walk, SIGNAL(walked(int)), &walk, SLOT(stop()));
    walk.start();
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    QVERIFY(walk.isStopped());
    QVERIFY(walk.read(1));
    QVERIFY(!walk.read(2));
    QCOMPARE(walk.restored(), both(7));
    QCOMPARE(hall.device(first)->currentPreset(), 7);
}

void TestHallWalk::stoppingWaitsForTheLayoutThatIsLoading()
{
    START_HALL;
    RECALL_ON_BOTH(7);
    hall.device(first)->setFault(
        {.exchange = Exchange::RecallCommand, .kind = FaultKind::NoEffect, .times = 1});
    HallWalk walk({first, second}, {1, 2}, 0, patienceMs);
    QSignalSpy over(&walk, SIGNAL(finished()));
    walk.start();
    QTRY_COMPARE(recallCount(hall), 1);
    walk.stop();
    // It goes on telling the preset before, and that is no reason to take it for restored.
    const qsizetype asked = questionCount(hall);
    QTRY_VERIFY_WITH_TIMEOUT(questionCount(hall) > asked + 2, patienceMs);
    QCOMPARE(recallCount(hall), 1);
    PresetRound loaded({first}, patienceMs, nullptr);
    loaded.recall({{first, 1}}, 0);
    QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patienceMs);
    QCOMPARE(walk.read(1).value_or(HallWalk::Reading()), both(1));
    QVERIFY(!walk.read(2));
    QCOMPARE(walk.restored(), both(7));
    QCOMPARE(hall.device(first)->currentPreset(), 7);
}

void TestHallWalk::stoppingBeforeTheFirstLayoutRecallsNothing()
{
    START_HALL;
    RECALL_ON_BOTH(7);
    hall.device(second)->setFault(
        {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    HallWalk walk({first, second}, {1, 2}, 0, patienceMs);
    QSignalSpy over(&walk, SIGNAL(finished()));
    walk.start();
    // Whoever has answered is listened to no longer.
    QTRY_COMPARE(walk.findChildren<CurrentPresetSender*>().size(), 2);
    QTRY_COMPARE(walk.findChildren<CurrentPresetSender*>().size(), 1);
    walk.stop();
    QCOMPARE(over.size(), 1);
    QVERIFY(walk.isStopped());
    QVERIFY(!walk.hasRecalled());
    QCOMPARE(walk.before(), (HallWalk::Reading{{first, 7}}));
    QCOMPARE(recallCount(hall), 0);
}

void TestHallWalk::hallWhereNobodyAnswersIsLeftAlone()
{
    START_HALL;
    for (const QString& hub : {first, second}) {
        hall.device(hub)->setFault(
            {.exchange = Exchange::CurrentPreset, .kind = FaultKind::NoAnswer});
    }
    WALK((QList{1, 2}), shortMs);
    QVERIFY(!walk.hasRecalled());
    QVERIFY(!walk.isStopped());
    QCOMPARE(recallCount(hall), 0);
}

TESSEL_TEST_MAIN(TestHallWalk)
#include "tst_hallwalk.moc"
