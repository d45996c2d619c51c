// Hours of work in one run of the program. What the wizard holds after the first rounds is what it
// holds after the last one.
#include "footprint.h"
#include "soakwizard.h"
#include "testcase.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QTest>

#include <functional>

namespace {

constexpr int firstRounds = 10; // until then pages, dialogs, fonts and buffers are made
constexpr int installPage = 7;
// What is in use wavers by some blocks. Lost by every round, they would be ten times as much.
constexpr qint64 heapWaverKiB = 64;
constexpr qint64 residentWaverKiB = 1024;

struct Rounds
{
    int installations = 20;
    int roundTrips = 50;
    int discoveries = 20;
};

Rounds roundsToRun()
{
    constexpr Rounds all{200, 500, 100};
    return qEnvironmentVariable("TESSEL_SOAK") == u"full" ? all : Rounds();
}

bool isWithin(const Footprint& late, const Footprint& early)
{
    return late.files <= early.files && late.objects <= early.objects &&
           late.timers <= early.timers && late.heapKiB <= early.heapKiB + heapWaverKiB &&
           late.residentKiB <= early.residentKiB + residentWaverKiB;
}

/// What the event loop does between two clicks of a user.
void rest()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Plays so many rounds and compares what the program holds after the first of them and after the
/// last.
void holdStill(int rounds, const std::function<void()>& play, const std::function<Footprint()>& see)
{
    Footprint early;
    for (int round = 1; round <= rounds; ++round) {
        play();
        rest();
        if (QTest::currentTestFailed()) {
            return;
        }
        if (round == firstRounds) {
            early = see();
        }
    }
    qInfo().noquote() << "After" << firstRounds << "rounds:" << early.text();
    qInfo().noquote() << "After" << rounds << "rounds:" << see().text();
    // Connections end, and objects are deleted, a moment after their use.
    QTRY_VERIFY2(isWithin(see(), early), qPrintable(see().text()));
}

} // namespace

class TestSoak : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void installationsLeaveNothingBehind();
    void roundTripsThroughThePagesLeaveNothingBehind();
    void discoveriesLeaveNothingBehind();
    void startsThatDiscoverLeaveNothingBehind();
};

void TestSoak::initTestCase()
{
    TestCase::initTestCase();
    // What the wizard logs about each request would be most of this program's output.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

void TestSoak::installationsLeaveNothingBehind()
{
    SoakHall hall(QStringLiteral("127.82.1.1"));
    const LoginAnswers answers(QStringLiteral("secret7"));
    SoakWizard wizard;
    wizard.discover(hall);
    wizard.configure(hall);
    for (int index = 0; index < installPage; ++index) {
        wizard.next();
    }
    const auto play = [&] {
        wizard.install();
        wizard.back();
        wizard.next();
        hall.forget();
    };
    holdStill(roundsToRun().installations, play, [&] { return measureFootprint(wizard.doc); });
}

void TestSoak::roundTripsThroughThePagesLeaveNothingBehind()
{
    SoakHall hall(QStringLiteral("127.82.2.1"));
    SoakWizard wizard;
    wizard.discover(hall);
    wizard.configure(hall);
    const auto play = [&wizard] {
        for (int index = 0; index < installPage; ++index) {
            wizard.next();
        }
        while (wizard.pageIndex() > 0) {
            wizard.back();
        }
    };
    holdStill(roundsToRun().roundTrips, play, [&] { return measureFootprint(wizard.doc); });
}

void TestSoak::discoveriesLeaveNothingBehind()
{
    SoakHall hall(QStringLiteral("127.82.3.1"));
    SoakWizard wizard;
    holdStill(
        roundsToRun().discoveries, [&] { wizard.discover(hall); },
        [&] { return measureFootprint(wizard.doc); });
}

void TestSoak::startsThatDiscoverLeaveNothingBehind()
{
    SoakHall hall(QStringLiteral("127.82.4.1"));
    const QObject nobody;
    const auto play = [&hall] {
        SoakWizard wizard;
        wizard.discover(hall);
        hall.forget();
    };
    holdStill(roundsToRun().discoveries, play, [&] { return measureFootprint(nobody); });
}

TESSEL_TEST_MAIN(TestSoak)
#include "tst_soak.moc"
