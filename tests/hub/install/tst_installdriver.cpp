#include "datakind.h"
#include "fakepresets.h"
#include "httpconnection.h"
#include "hubscript.h"
#include "installdriver.h"
#include "senderclock.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

/// An installation without a face: what it asks for, when it waits, and how it says that it ended.
class TestInstallDriver : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRunThatGoesWellSaysSoOnce();
    void anotherStatusIsNamedWithItsRequest_data();
    void anotherStatusIsNamedWithItsRequest();
    void aSilentHubIsNamedWithItsRequest();
    void aHubThatHangsUpIsToldFromASilentOne();
    void aRefusedConnectionIsToldFromASilentHub();
    void anAddressWithoutAWayIsToldFromASilentHub();
    void whatTheDocumentLacksIsNamedWithItsRequest_data();
    void whatTheDocumentLacksIsNamedWithItsRequest();
    void aCancelledLogInIsNamedWithThePasswordThatWasWanted();
    void aTokenThatStaysValidIsARequestThatWasNotConfirmed();
    void aRefusedRecallIsNamedAlthoughEverythingIsInstalled();
    void aRefusedRecallIsNamedAsSoonAsItIsTold();
    void everyFileOfTheHubAndItsDevicesCountsAsProgress();
    void aRunThatBeginsAnewHasMadeNoProgress();
    void theReasonOfAnEarlierRunIsForgottenWithTheNext();
    void whatTheHubSaysOfItselfIsShownOnOneLine();
    void answersNobodyAskedForChangeNothing();
    void aStartWhileThePasswordIsAskedForChangesNothing();
    void anExportThatIsNotReadyIsAskedForAgainAfterASecondAtTheEarliest();
    void whileOneHubPreparesTheOthersAreServed();
    void aHubThatPreparesForEverCanBeGivenUpAndTriedAgain();
    void whatTheHubSaysDuringThePauseIsNoAnswer();
    void theTimeOutGoesOnDuringThePauseAndBeginsAnewWithEachReply();
    void theEndOfTheDriverTakesThePauseWithIt();
};

namespace {

const QString device = QStringLiteral("10.0.0.21");
const QString password = QStringLiteral("Opensesame1");
constexpr int moreThanPatience = 31;
constexpr int never = 1000;

QString hub(int number = 1)
{
    return QStringLiteral("127.21.6.%1").arg(number);
}

/// A driver, the hub that it installs into, and a user who knows the password.
class Fixture : public QObject
{
    Q_OBJECT

public:
    explicit Fixture(int number = 1)
        : peer(hub(number),
               [this](const QByteArray& request, qsizetype n) {
                   asked(stepOf(request));
                   return script(request, n);
               })
        , driver(std::make_unique<InstallDriver>(hub(number), &doc, nullptr))
        , ended(driver.get(), SIGNAL(ended()))
    {
        doc.names = {QStringLiteral("One"), QStringLiteral("Two")};
        doc.devices = {{1, {device}}};
        doc.deviceFiles = {{device, QStringLiteral("<device/>\n")}};
        connect(driver.get(), SIGNAL(firstPasswordWanted()), this, SLOT(answer()));
        connect(driver.get(), SIGNAL(passwordWanted(bool)), this, SLOT(answer()));
        connect(driver.get(), SIGNAL(loggedIn()), this, SLOT(goOn()));
    }

    /// Starts, and waits for the end.
    bool run()
    {
        const qsizetype before = ended.size();
        driver->start();
        return ended.size() > before || ended.wait(10000);
    }

    /// Starts, and waits until the request of `step` has come and nothing answers it.
    bool runUntilSilentAt(InstallStep step)
    {
        script.instead.insert(step, {});
        return runUntilAskedFor(step);
    }

    bool runUntilAskedFor(InstallStep step)
    {
        driver->start();
        return QTest::qWaitFor([this, step] {
            return !peer.requests().isEmpty() && stepOf(peer.requests().last()) == step;
        });
    }

    bool isPausing() const { return isClockRunning(driver->findChild<HttpConnection*>()); }

    QString steps() const { return stepsOf(peer.requests()); }

    std::function<void(InstallStep)> asked = [](InstallStep) {};
    HubScript script;
    ScriptedPeer peer;
    FakePresets doc;
    std::unique_ptr<InstallDriver> driver;
    QSignalSpy ended;
    bool cancels = false;

private Q_SLOTS:
    void answer()
    {
        if (cancels) {
            driver->cancelLogIn();
        } else {
            driver->submitPassword(password);
        }
    }

    void goOn() { driver->sendPresets(); }
};

QList<ScriptedAnswer> notReady(int times)
{
    QList<ScriptedAnswer> answers;
    answers.fill(okAnswer("{}"), times);
    return answers;
}

InstallOutcome failure(InstallTrouble trouble, const InstallPlace& place,
                       const QString& status = QString())
{
    return {.isInstalled = false, .trouble = trouble, .place = place, .status = status};
}

/// Every request of a run with its place.
QList<InstallPlace> places()
{
    return {{InstallStep::Status},
            {InstallStep::Token},
            {InstallStep::StartExport},
            {InstallStep::FetchExport},
            {InstallStep::PresetEntry, 1},
            {InstallStep::HubFile, 1},
            {InstallStep::PeripheralFile, 1, device},
            {InstallStep::Recall},
            {InstallStep::Invalidate}};
}

} // namespace

void TestInstallDriver::aRunThatGoesWellSaysSoOnce()
{
    Fixture f;
    QVERIFY(f.peer.isListening());
    QCOMPARE(f.driver->outcome(), InstallOutcome());
    QVERIFY(f.run());
    QCOMPARE(f.driver->outcome(), InstallOutcome{.isInstalled = true});
    QCOMPARE(f.ended.size(), 1);
    QVERIFY(!f.driver->isRunning());
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 7 8 6 7 9 10"));
}

void TestInstallDriver::anotherStatusIsNamedWithItsRequest_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < places().size(); ++number) {
        QTest::addRow("step %d", int(places().at(number).step)) << number;
    }
}

void TestInstallDriver::anotherStatusIsNamedWithItsRequest()
{
    QFETCH(const int, number);
    const InstallPlace place = places().at(number);
    Fixture f;
    f.script.instead = {{place.step,
                         {{"HTTP/1.1 507 Insufficient Storage\r\n"
                           "Content-Length: 2\r\n\r\n{}"}}}};
    QVERIFY(f.run());
    QCOMPARE(f.driver->outcome(), failure(InstallTrouble::OtherStatus, place,
                                          QStringLiteral("507 Insufficient Storage")));
    QCOMPARE(f.ended.size(), 1);
}

void TestInstallDriver::aSilentHubIsNamedWithItsRequest()
{
    for (const InstallPlace& place : places()) {
        Fixture f;
        QVERIFY(f.runUntilSilentAt(place.step));
        passSeconds(f.driver.get(), moreThanPatience);
        QCOMPARE(f.driver->outcome(), failure(InstallTrouble::Silence, place));
        QCOMPARE(f.ended.size(), 1);
    }
}

void TestInstallDriver::aHubThatHangsUpIsToldFromASilentOne()
{
    Fixture f;
    f.script.instead = {{InstallStep::HubFile, {{"HTTP/1.1 200 OK\r\n"}, true}}};
    QVERIFY(f.runUntilAskedFor(InstallStep::HubFile));
    const auto* connection = f.driver->findChild<HttpConnection*>();
    QTRY_COMPARE(connection->trouble(), HttpConnection::Trouble::Broken);
    QVERIFY(f.driver->isRunning());
    passSeconds(f.driver.get(), moreThanPatience);
    QCOMPARE(f.driver->outcome(),
             failure(InstallTrouble::ConnectionBroken, {InstallStep::HubFile, 1}));
}

void TestInstallDriver::aRefusedConnectionIsToldFromASilentHub()
{
    FakePresets doc;
    InstallDriver driver(hub(99), &doc, nullptr);
    driver.start();
    const auto* connection = driver.findChild<HttpConnection*>();
    QTRY_COMPARE(connection->trouble(), HttpConnection::Trouble::Refused);
    QVERIFY(driver.isRunning());
    passSeconds(&driver, moreThanPatience);
    QCOMPARE(driver.outcome(), failure(InstallTrouble::ConnectionRefused, {InstallStep::Status}));
}

void TestInstallDriver::anAddressWithoutAWayIsToldFromASilentHub()
{
    FakePresets doc;
    InstallDriver driver(QStringLiteral("255.255.255.255"), &doc, nullptr);
    driver.start();
    passSeconds(&driver, moreThanPatience);
    QCOMPARE(driver.outcome(), failure(InstallTrouble::Unreachable, {InstallStep::Status}));
}

void TestInstallDriver::whatTheDocumentLacksIsNamedWithItsRequest_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("number");
    QTest::newRow("the preset's name") << DataKind::Preset << 4;
    QTest::newRow("the hub's file") << DataKind::PresetFile << 5;
    QTest::newRow("the list of devices") << DataKind::DeviceIPList << 6;
    QTest::newRow("a device's file") << DataKind::DevicePresetFile << 6;
}

void TestInstallDriver::whatTheDocumentLacksIsNamedWithItsRequest()
{
    QFETCH(const int, kind);
    QFETCH(const int, number);
    Fixture f;
    f.doc.unreadableKind = kind;
    QVERIFY(f.run());
    // Whose file comes first is not known where the list is missing.
    const InstallPlace place = kind == DataKind::DeviceIPList
                                   ? InstallPlace{InstallStep::PeripheralFile, 1}
                                   : places().at(number);
    QCOMPARE(f.driver->outcome(), failure(InstallTrouble::MissingRecords, place));
}

void TestInstallDriver::aCancelledLogInIsNamedWithThePasswordThatWasWanted()
{
    for (const int initialized : {0, 1}) {
        Fixture f;
        f.script.initialized = initialized;
        f.cancels = true;
        QVERIFY(f.run());
        const InstallStep step = initialized ? InstallStep::Authenticate : InstallStep::Validate;
        QCOMPARE(f.driver->outcome(), failure(InstallTrouble::Cancelled, {step}));
        QVERIFY(!f.driver->isLoggedIn());
    }
}

void TestInstallDriver::aTokenThatStaysValidIsARequestThatWasNotConfirmed()
{
    Fixture f;
    f.script.instead = {{InstallStep::Invalidate, okAnswer(R"({"status": "valid"})")}};
    QVERIFY(f.run());
    QCOMPARE(f.driver->outcome(), failure(InstallTrouble::NotConfirmed, {InstallStep::Invalidate}));
}

void TestInstallDriver::aRefusedRecallIsNamedAlthoughEverythingIsInstalled()
{
    Fixture f;
    const QSignalSpy refused(f.driver.get(), SIGNAL(recallRefused()));
    f.script.instead = {{InstallStep::Recall, okAnswer(R"({"request": "refused"})")}};
    QVERIFY(f.run());
    const InstallOutcome expected{.isInstalled = true,
                                  .trouble = InstallTrouble::NotConfirmed,
                                  .place = {InstallStep::Recall}};
    QCOMPARE(f.driver->outcome(), expected);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(f.ended.size(), 1);
}

void TestInstallDriver::aRefusedRecallIsNamedAsSoonAsItIsTold()
{
    Fixture f;
    InstallOutcome told;
    QVERIFY(connect(f.driver.get(), &InstallDriver::recallRefused, this,
                    [&] { told = f.driver->outcome(); }));
    f.script.instead = {{InstallStep::Recall, okAnswer(R"({"request": "refused"})")}};
    QVERIFY(f.run());
    QCOMPARE(told, failure(InstallTrouble::NotConfirmed, {InstallStep::Recall}));
}

void TestInstallDriver::everyFileOfTheHubAndItsDevicesCountsAsProgress()
{
    Fixture f;
    QList<InstallProgress> told;
    QVERIFY(connect(f.driver.get(), &InstallDriver::progressed, this,
                    [&] { told.append(f.driver->progress()); }));
    QCOMPARE(f.driver->progress(), InstallProgress());
    QVERIFY(f.run());
    QCOMPARE(told, (QList<InstallProgress>{{0, 3}, {1, 3}, {2, 3}, {3, 3}}));
}

void TestInstallDriver::aRunThatBeginsAnewHasMadeNoProgress()
{
    Fixture f;
    QVERIFY(f.run());
    QVERIFY(f.runUntilSilentAt(InstallStep::Status));
    QCOMPARE(f.driver->progress(), InstallProgress());
}

void TestInstallDriver::theReasonOfAnEarlierRunIsForgottenWithTheNext()
{
    Fixture f;
    f.script.first = {{InstallStep::Recall, {okAnswer(R"({"request": "refused"})")}}};
    QVERIFY(f.run());
    QCOMPARE(f.driver->outcome().trouble, InstallTrouble::NotConfirmed);
    QVERIFY(f.run());
    QCOMPARE(f.driver->outcome(), InstallOutcome{.isInstalled = true});
}

void TestInstallDriver::whatTheHubSaysOfItselfIsShownOnOneLine()
{
    Fixture f;
    f.script.instead = {{InstallStep::Status,
                         {{"HTTP/1.1 500 \x1B[2J\tbad\nnews  " + QByteArray(500, 'x') +
                           "\r\nContent-Length: 2\r\n\r\n{}"}}}};
    QVERIFY(f.run());
    const QString status = f.driver->outcome().status;
    QVERIFY2(status.startsWith(QStringLiteral("500 [2J bad news xxx")), qPrintable(status));
    QVERIFY(status.size() <= 80);
}

void TestInstallDriver::answersNobodyAskedForChangeNothing()
{
    Fixture f;
    f.driver->submitPassword(password);
    f.driver->cancelLogIn();
    f.driver->sendPresets();
    QVERIFY(!f.driver->isRunning());
    QVERIFY(f.ended.isEmpty());
    QVERIFY(f.run());
    f.driver->cancelLogIn();
    QCOMPARE(f.driver->outcome(), InstallOutcome{.isInstalled = true});
    QCOMPARE(f.ended.size(), 1);
}

void TestInstallDriver::aStartWhileThePasswordIsAskedForChangesNothing()
{
    Fixture f;
    // In place of the answer the user presses "Execute" once more.
    disconnect(f.driver.get(), SIGNAL(passwordWanted(bool)), &f, nullptr);
    QSignalSpy wanted(f.driver.get(), SIGNAL(passwordWanted(bool)));
    f.driver->start();
    QVERIFY(wanted.wait());
    f.driver->start();
    QVERIFY(f.driver->isAskingUser());
    f.driver->submitPassword(password);
    QVERIFY(f.ended.wait());
    QVERIFY(f.driver->outcome().isInstalled);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 7 8 6 7 9 10"));
}

void TestInstallDriver::anExportThatIsNotReadyIsAskedForAgainAfterASecondAtTheEarliest()
{
    Fixture f;
    f.script.first = {{InstallStep::FetchExport, notReady(2)}};
    // What the hub sees from one request to the next, its reply in between.
    QList<qint64> waits;
    QElapsedTimer clock;
    f.asked = [&](InstallStep step) {
        if (step == InstallStep::FetchExport && clock.isValid()) {
            waits.append(clock.elapsed());
        }
        clock.start();
    };
    QVERIFY(f.run());
    QVERIFY(f.driver->outcome().isInstalled);
    QCOMPARE(waits.size(), 3);
    QVERIFY(waits.at(1) >= 1000 && waits.at(2) >= 1000);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 5 5 6 7 8 6 7 9 10"));
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestInstallDriver::whileOneHubPreparesTheOthersAreServed()
{
    Fixture preparing(1);
    preparing.script.first = {{InstallStep::FetchExport, notReady(never)}};
    preparing.driver->start();
    QTRY_VERIFY(preparing.isPausing());
    Fixture other(2);
    int servedMeanwhile = 0;
    other.asked = [&](InstallStep) { servedMeanwhile += preparing.isPausing() ? 1 : 0; };
    QVERIFY(other.run());
    QVERIFY(other.driver->outcome().isInstalled);
    QVERIFY(servedMeanwhile > 0);
    QVERIFY(preparing.driver->isRunning());
}

void TestInstallDriver::aHubThatPreparesForEverCanBeGivenUpAndTriedAgain()
{
    Fixture f;
    f.script.first = {{InstallStep::FetchExport, notReady(1)}};
    f.driver->start();
    QTRY_VERIFY(f.isPausing());
    f.driver->start();
    QVERIFY(!f.isPausing());
    QTRY_COMPARE(f.ended.size(), 1);
    QVERIFY(f.driver->outcome().isInstalled);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 0 1 3 4 5 6 7 8 6 7 9 10"));
    QCOMPARE(f.peer.connectionCount(), 2);
}

void TestInstallDriver::whatTheHubSaysDuringThePauseIsNoAnswer()
{
    Fixture f;
    f.script.first = {{InstallStep::FetchExport, notReady(1)}};
    f.driver->start();
    QSignalSpy arrived(f.driver->findChild<HttpConnection*>(), SIGNAL(arrived()));
    while (!f.isPausing()) {
        QVERIFY(arrived.wait());
    }
    f.peer.sendUnasked(f.script.good(InstallStep::FetchExport).pieces.first());
    QVERIFY(arrived.wait());
    QVERIFY(f.isPausing());
    QTRY_COMPARE(f.ended.size(), 1);
    QVERIFY(f.driver->outcome().isInstalled);
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 5 6 7 8 6 7 9 10"));
}

void TestInstallDriver::theTimeOutGoesOnDuringThePauseAndBeginsAnewWithEachReply()
{
    Fixture f;
    f.script.first = {{InstallStep::FetchExport, notReady(never)}};
    f.driver->start();
    QTRY_VERIFY(f.isPausing());
    passSeconds(f.driver.get(), 28);
    const QSignalSpy arrived(f.driver->findChild<HttpConnection*>(), SIGNAL(arrived()));
    QTRY_COMPARE(arrived.size(), 1);
    passSeconds(f.driver.get(), 28);
    QVERIFY(f.driver->isRunning());
    passSeconds(f.driver.get(), 3);
    QCOMPARE(f.driver->outcome(), failure(InstallTrouble::Silence, {InstallStep::FetchExport}));
    QVERIFY(!f.isPausing());
}

void TestInstallDriver::theEndOfTheDriverTakesThePauseWithIt()
{
    Fixture f(1);
    f.script.first = {{InstallStep::FetchExport, notReady(never)}};
    Fixture witness(2);
    witness.script.first = {{InstallStep::FetchExport, notReady(1)}};
    f.driver->start();
    QTRY_VERIFY(f.isPausing());
    f.driver.reset();
    // A whole pause of another run passes.
    QVERIFY(witness.run());
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5"));
}

TESSEL_TEST_MAIN(TestInstallDriver)
#include "tst_installdriver.moc"
