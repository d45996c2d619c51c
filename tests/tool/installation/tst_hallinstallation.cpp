#include "hall.h"
#include "halldocument.h"
#include "hallinstallation.h"
#include "knownpasswords.h"
#include "quickhall.h"
#include "stillness.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTest>

#include <utility>

namespace {

constexpr int longestWaitMs = 60000;

/// A hall, what is installed on its hubs, and a user.
struct InstallDesk
{
    explicit InstallDesk(const HallDescription& description)
        : hall(description)
    {
        QString error;
        const bool isStarted = hall.start(&error);
        QVERIFY2(isStarted, qPrintable(error));
        enterQuickHall(doc, description);
        for (const HubDescription& hub : description.hubs) {
            hubs.append(hub.address);
        }
    }

    bool hasEnded(const QSignalSpy& finished) const
    {
        return QTest::qWaitFor([&finished] { return !finished.isEmpty(); }, longestWaitMs);
    }

    /// Waits until no hub hears anything more.
    void rest() const
    {
        qsizetype before = 0;
        waitUntilStill([this, &before] {
            qsizetype heard = 0;
            for (const SimulatedHub* hub : hall.hubs()) {
                heard += hub->journal().size();
            }
            return std::exchange(before, heard) != heard;
        });
    }

    bool wasChanged(const QString& hub) const { return !hall.hub(hub)->presets().isEmpty(); }

    Hall hall;
    HallDocument doc;
    QStringList hubs;
    KnownPasswords passwords{quickPassword()};
};

} // namespace

/// All hubs of a hall at once, without a page.
class TestHallInstallation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyHubIsDoneAndNothingIsSaidAgainstIt();
    void aHubWithoutPasswordIsAskedForItsFirstAndThenForIt();
    void noHubIsChangedBeforeEveryLogInIsAnswered();
    void aWithheldPasswordIsTheReasonAndHoldsNobodyBack();
    void aBrokenOffInstallationNamesWhatIsNotFinished();
    void whatWasBrokenOffBeginsNoTransfer_data();
    void whatWasBrokenOffBeginsNoTransfer();
};

void TestHallInstallation::everyHubIsDoneAndNothingIsSaidAgainstIt()
{
    InstallDesk desk(quickHall(QStringLiteral("127.72.1.1"), 2, 1));
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy finished(&installation, SIGNAL(finished()));
    installation.start();
    QVERIFY(desk.hasEnded(finished));
    QCOMPARE(finished.size(), 1);
    for (const QString& hub : std::as_const(desk.hubs)) {
        QVERIFY(installation.outcome(hub).isInstalled);
        QCOMPARE(installation.reason(hub), QString());
        QCOMPARE(desk.hall.hub(hub)->recalledPreset(), 1);
    }
    // Two layouts, in each the hub's own file and the device's.
    const InstallProgress all{.filesStored = 4, .filesToStore = 4};
    QCOMPARE(installation.progress(desk.hubs.first()), all);
    QCOMPARE(desk.hall.differences(), QStringList());
}

void TestHallInstallation::aHubWithoutPasswordIsAskedForItsFirstAndThenForIt()
{
    HallDescription description = quickHall(QStringLiteral("127.72.2.1"), 1, 0);
    description.hubs.first().password.reset();
    InstallDesk desk(description);
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy finished(&installation, SIGNAL(finished()));
    installation.start();
    QVERIFY(desk.hasEnded(finished));
    QVERIFY(installation.outcome(desk.hubs.first()).isInstalled);
    QCOMPARE(desk.passwords.wishes().size(), 2);
    QVERIFY(desk.passwords.wishes().at(0).isFirst);
    QVERIFY(!desk.passwords.wishes().at(1).isFirst);
}

void TestHallInstallation::noHubIsChangedBeforeEveryLogInIsAnswered()
{
    InstallDesk desk(quickHall(QStringLiteral("127.72.3.1"), 2, 0));
    desk.passwords.hold(desk.hubs.first());
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy finished(&installation, SIGNAL(finished()));
    installation.start();
    desk.rest();
    QCOMPARE(desk.passwords.wishes().size(), 2);
    QVERIFY(!desk.hall.hub(desk.hubs.last())
                 ->exchangeNames()
                 .contains(exchangeName(Exchange::StartExport)));
    desk.passwords.answer(desk.hubs.first());
    QVERIFY(desk.hasEnded(finished));
    QVERIFY(desk.wasChanged(desk.hubs.first()) && desk.wasChanged(desk.hubs.last()));
}

void TestHallInstallation::aWithheldPasswordIsTheReasonAndHoldsNobodyBack()
{
    InstallDesk desk(quickHall(QStringLiteral("127.72.4.1"), 2, 0));
    desk.passwords.giveUpAfter(desk.hubs.first(), 0);
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy finished(&installation, SIGNAL(finished()));
    installation.start();
    QVERIFY(desk.hasEnded(finished));
    QCOMPARE(installation.outcome(desk.hubs.first()).trouble, InstallTrouble::Cancelled);
    QCOMPARE(installation.reason(desk.hubs.first()), QStringLiteral("Logging in: tired of it"));
    QVERIFY(!desk.wasChanged(desk.hubs.first()));
    QVERIFY(installation.outcome(desk.hubs.last()).isInstalled);
}

void TestHallInstallation::aBrokenOffInstallationNamesWhatIsNotFinished()
{
    InstallDesk desk(quickHall(QStringLiteral("127.72.5.1"), 2, 0));
    desk.hall.hubs().last()->setFault(
        {.exchange = Exchange::PresetEntry, .kind = FaultKind::Silence});
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy finished(&installation, SIGNAL(finished()));
    installation.start();
    desk.rest();
    installation.breakOff();
    QCOMPARE(finished.size(), 1);
    QVERIFY(installation.isBrokenOff());
    QVERIFY(installation.outcome(desk.hubs.first()).isInstalled);
    QVERIFY(!installation.outcome(desk.hubs.last()).isInstalled);
    QCOMPARE(installation.reason(desk.hubs.last()),
             QStringLiteral("Making the preset of layout 1: it was broken off and is not "
                            "finished"));
}

void TestHallInstallation::whatWasBrokenOffBeginsNoTransfer_data()
{
    QTest::addColumn<bool>("isUserGone");
    QTest::newRow("by the command") << false;
    QTest::newRow("by the loss of the user") << true;
}

void TestHallInstallation::whatWasBrokenOffBeginsNoTransfer()
{
    QFETCH(const bool, isUserGone);
    InstallDesk desk(quickHall(QStringLiteral("127.72.6.1"), 2, 0));
    desk.passwords.hold(desk.hubs.first());
    HallInstallation installation(&desk.doc, desk.hubs, &desk.passwords);
    const QSignalSpy progressed(&installation, SIGNAL(progressed()));
    installation.start();
    desk.rest();
    if (isUserGone) {
        desk.passwords.leave();
    } else {
        installation.breakOff();
    }
    desk.rest();
    QCOMPARE(progressed.size(), 0);
    for (const QString& hub : std::as_const(desk.hubs)) {
        QVERIFY(!installation.isRunning(hub));
        QCOMPARE(installation.outcome(hub).trouble, InstallTrouble::BrokenOff);
        QVERIFY(!desk.wasChanged(hub));
    }
}

TESSEL_TEST_MAIN(TestHallInstallation)
#include "tst_hallinstallation.moc"
