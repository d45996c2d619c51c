#include "fakepresets.h"
#include "hall.h"
#include "hubdialog.h"
#include "installpage.h"
#include "presetfilesender.h"
#include "promptwatcher.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QSet>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>
#include <QTreeWidget>

/// Whole installations into a simulated hall, which checks every byte that it is sent.
class TestInstallation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyHubHoldsWhatTheDocumentSays();
    void noHubIsChangedBeforeEveryHubIsAnsweredFor();
    void aCancelledHubHoldsNothingAndTheOthersAreDone();
    void aHubThatFailsBeforeItsLogInHoldsNobodyBack();
    void failedHubsAreDoneOnceTheirCauseIsGone();
    void aHubThatRestartsBeforeTheTransferFailsAndCanBeRepeated();
    void everyReplyMayComeInPieces_data();
    void everyReplyMayComeInPieces();
    void everyReplyMayCloseTheConnection();
    void anyFaultOfOneHubLeavesTheOthersDone_data();
    void anyFaultOfOneHubLeavesTheOthersDone();
};

namespace {

constexpr int hubCount = 4;

const QByteArray deviceFile = "<provisioning>\n <config sys.systemname=\"Ceiling\" "
                              "sys.systemname-mode=\"0\"/>\n</provisioning>\n";

QString passwordOf(const QString& address)
{
    return QStringLiteral("Pass") + address.back();
}

HallDescription describeHall()
{
    HallDescription description =
        *HallDescription::byCounts(hubCount, 0, QStringLiteral("127.21.3.1"));
    for (HubDescription& hub : description.hubs) {
        hub.password = passwordOf(hub.address);
        hub.exportPolls = 0;
    }
    // One hub has never been given a password.
    description.hubs.last().password.reset();
    return description;
}

QString addressIn(const HubDialog* dialog)
{
    const auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("hubList"));
    return list->topLevelItem(0)->text(2);
}

/// A hall, the page with a sender for each of its hubs, and the person who answers the dialogs.
class Fixture : public QObject
{
    Q_OBJECT

public:
    Fixture()
        : hall(describeHall())
        , watcher([this](HubDialog* dialog, int) { answer(dialog); })
    {
        doc.names = {QStringLiteral("\u00C4 \"x\" \\ y"), QString(), QStringLiteral("50%2")};
        doc.devices = {{1, {QStringLiteral("10.0.0.1"), QStringLiteral("10.0.0.2")}},
                       {3, {QStringLiteral("10.0.0.2")}}};
        doc.deviceFiles = {{QStringLiteral("10.0.0.1"), QString::fromUtf8(deviceFile)},
                           {QStringLiteral("10.0.0.2"), QString::fromUtf8(deviceFile)}};
        for (const SimulatedHub* hub : hall.hubs()) {
            addSender(hub->address());
        }
        connect(&hall, SIGNAL(requestHandled(QString, QString)), this,
                SLOT(noteRequest(QString, QString)));
    }

    bool open()
    {
        QString error;
        return hall.start(&error);
    }

    /// "Execute", until every sender has told its outcome.
    bool install()
    {
        results.clear();
        for (PresetFileSender* sender : senders) {
            sender->start();
        }
        return waitForResults();
    }

    bool waitForResults()
    {
        while (results.size() < senders.size() || isAnyRunning()) {
            QSignalSpy spy(this, SIGNAL(resultArrived()));
            if (!spy.wait(10000)) {
                return false;
            }
        }
        return true;
    }

    /// What the user then sees, in the order of the hubs.
    QString statusTexts() const
    {
        QStringList texts;
        for (const SimulatedHub* hub : hall.hubs()) {
            texts.append(results.value(hub->address()) == 1 ? QStringLiteral("Done")
                                                            : QStringLiteral("Error"));
        }
        return texts.join(u' ');
    }

    bool holdsEverything(const SimulatedHub* hub) const
    {
        bool same = hub->presets().size() == doc.names.size() && hub->recalledPreset() == 1;
        for (int number = 1; same && number <= doc.names.size(); ++number) {
            const StoredPreset preset = hub->presets().value(number);
            QMap<QString, QByteArray> files{
                {hub->hubDescription().storageName(), FakePresets::hubFile(number)}};
            for (const QString& device : doc.devices.value(number)) {
                files.insert(FakePresets::macOf(device).remove(u':'), deviceFile);
            }
            same = preset.description() == doc.names.at(number - 1) && preset.files == files;
        }
        return same;
    }

    Hall hall;
    FakePresets doc;
    InstallPage page;
    QHash<QString, PresetFileSender*> senders;
    QHash<QString, int> results;
    QSet<QString> cancelled; ///< hubs whose dialog is cancelled
    QStringList requests;    ///< of all hubs in the order of their coming
    PromptWatcher watcher;

Q_SIGNALS:
    void resultArrived();

private Q_SLOTS:
    void noteResult(const QString& address, int result)
    {
        results.insert(address, result);
        page.senderLogin();
        Q_EMIT resultArrived();
    }

    void noteRequest(const QString& /*address*/, const QString& name) { requests.append(name); }

private:
    void addSender(const QString& address)
    {
        auto* sender = new PresetFileSender(address, QStringLiteral("Hub"), &doc, &page);
        connect(sender, SIGNAL(finished(QString, int)), this, SLOT(noteResult(QString, int)));
        connect(sender, SIGNAL(completedLogin()), &page, SLOT(senderLogin()));
        connect(sender, SIGNAL(cancelledLogin()), &page, SLOT(senderLogin()));
        senders.insert(address, sender);
    }

    void answer(HubDialog* dialog) const
    {
        if (cancelled.contains(addressIn(dialog))) {
            cancelPrompt(dialog);
        } else {
            submitPassword(dialog, passwordOf(addressIn(dialog)));
        }
    }

    bool isAnyRunning() const
    {
        return std::any_of(senders.cbegin(), senders.cend(),
                           [](const PresetFileSender* sender) { return sender->isRunning(); });
    }
};

const QString allDone = QStringLiteral("Done Done Done Done");
const QString firstFails = QStringLiteral("Error Done Done Done");

bool isListening(const QString& address)
{
    QTcpSocket socket;
    socket.connectToHost(address, SimulatedHub::httpPort);
    return socket.waitForConnected();
}

} // namespace

void TestInstallation::everyHubHoldsWhatTheDocumentSays()
{
    Fixture f;
    QVERIFY(f.open());
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
    for (const SimulatedHub* hub : f.hall.hubs()) {
        QVERIFY2(f.holdsEverything(hub), qPrintable(hub->address()));
    }
    QCOMPARE(f.hall.differences(), QStringList());
}

void TestInstallation::noHubIsChangedBeforeEveryHubIsAnsweredFor()
{
    Fixture f;
    QVERIFY(f.open());
    QVERIFY(f.install());
    const qsizetype lastLogIn = f.requests.lastIndexOf(exchangeName(Exchange::LogIn));
    const qsizetype firstExport = f.requests.indexOf(exchangeName(Exchange::StartExport));
    QVERIFY(lastLogIn >= 0 && lastLogIn < firstExport);
}

void TestInstallation::aCancelledHubHoldsNothingAndTheOthersAreDone()
{
    Fixture f;
    QVERIFY(f.open());
    f.cancelled = {f.hall.hubs().first()->address()};
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), firstFails);
    QVERIFY(f.hall.hubs().first()->presets().isEmpty());
    QVERIFY(f.holdsEverything(f.hall.hubs().last()));

    f.cancelled.clear();
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
    QVERIFY(f.holdsEverything(f.hall.hubs().first()));
    QCOMPARE(f.hall.differences(), QStringList());
}

void TestInstallation::aHubThatFailsBeforeItsLogInHoldsNobodyBack()
{
    Fixture f;
    QVERIFY(f.open());
    SimulatedHub* silent = f.hall.hubs().first();
    silent->setFault({.exchange = Exchange::Token, .kind = FaultKind::Silence});
    for (PresetFileSender* sender : f.senders) {
        sender->start();
    }
    // The others wait for the transfer; the silent one is what everybody waits for.
    QTRY_COMPARE(std::count_if(f.senders.cbegin(), f.senders.cend(),
                               [](const auto* sender) { return sender->isLoggedIn(); }),
                 hubCount - 1);
    QVERIFY(!f.requests.contains(exchangeName(Exchange::StartExport)));
    passSeconds(f.senders.value(silent->address()), 31);
    QVERIFY(f.waitForResults());
    QCOMPARE(f.statusTexts(), firstFails);
}

void TestInstallation::failedHubsAreDoneOnceTheirCauseIsGone()
{
    Fixture f;
    QVERIFY(f.open());
    f.hall.hubs().first()->setFault(
        {.exchange = Exchange::HubFile, .kind = FaultKind::Status, .number = 500, .skip = 1});
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), firstFails);
    f.hall.clearFaults();
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
    QVERIFY(f.holdsEverything(f.hall.hubs().first()));
}

void TestInstallation::aHubThatRestartsBeforeTheTransferFailsAndCanBeRepeated()
{
    Fixture f;
    QVERIFY(f.open());
    SimulatedHub* hub = f.hall.hubs().first();
    hub->setFault({.exchange = Exchange::StartExport, .kind = FaultKind::Reboot, .times = 1});
    const QSignalSpy noticed(&f.hall, SIGNAL(noticed(QString, QString)));
    for (PresetFileSender* sender : f.senders) {
        sender->start();
    }
    QTRY_COMPARE(f.results.size(), hubCount - 1);
    // Some systems let the others come to their end first.
    QTRY_VERIFY(std::any_of(noticed.begin(), noticed.end(), [](const QList<QVariant>& told) {
        return told.last().toString().startsWith(u"reboots");
    }));
    QTRY_VERIFY(isListening(hub->address()));
    passSeconds(f.senders.value(hub->address()), 31);
    QVERIFY(f.waitForResults());
    QCOMPARE(f.statusTexts(), firstFails);
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
    QVERIFY(f.holdsEverything(hub));
}

void TestInstallation::everyReplyMayComeInPieces_data()
{
    QTest::addColumn<QList<int>>("cuts");
    QTest::newRow("single bytes") << QList<int>{};
    QTest::newRow("inside the first word") << QList<int>{4};
    QTest::newRow("inside a line end") << QList<int>{16};
    QTest::newRow("in many places") << QList<int>{1, 7, 8, 9, 15, 17, 40, 41, 60};
}

void TestInstallation::everyReplyMayComeInPieces()
{
    QFETCH(const QList<int>, cuts);
    Fixture f;
    QVERIFY(f.open());
    f.hall.setFault({.kind = FaultKind::Pieces, .cuts = cuts});
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
    for (const SimulatedHub* hub : f.hall.hubs()) {
        QVERIFY(f.holdsEverything(hub));
    }
}

void TestInstallation::everyReplyMayCloseTheConnection()
{
    Fixture f;
    QVERIFY(f.open());
    f.hall.setFault({.kind = FaultKind::ConnectionHeader, .bytes = "close"});
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), allDone);
}

void TestInstallation::anyFaultOfOneHubLeavesTheOthersDone_data()
{
    QTest::addColumn<int>("exchange");
    for (int step = 0; step <= lastInstallationStep; ++step) {
        QTest::addRow("%s", qPrintable(exchangeName(static_cast<Exchange>(step)))) << step;
    }
}

void TestInstallation::anyFaultOfOneHubLeavesTheOthersDone()
{
    QFETCH(const int, exchange);
    const auto step = static_cast<Exchange>(exchange);
    Fixture f;
    QVERIFY(f.open());
    // The password is asked for again until it is right, so these two steps go wrong only once.
    const bool asksAgain = step == Exchange::SetPassword || step == Exchange::LogIn;
    SimulatedHub* faulty =
        step == Exchange::SetPassword ? f.hall.hubs().last() : f.hall.hubs().first();
    faulty->setFault(
        {.exchange = step, .kind = FaultKind::Status, .number = 503, .times = asksAgain ? 1 : -1});
    QVERIFY(f.install());
    QCOMPARE(f.statusTexts(), asksAgain ? allDone : firstFails);
}

TESSEL_TEST_MAIN(TestInstallation)
#include "tst_installation.moc"
