#include "datakind.h"
#include "httprequest.h"
#include "installrequest.h"
#include "printedlines.h"
#include "senderfixture.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QTest>

class TestPresetFileSender : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRunSendsItsRequestsInOrderOverOneConnection();
    void presetNamesArriveAsTyped();
    void nothingIsTransferredBeforeThePageSaysSo();
    void sendPresetsIsOnlyForASenderThatWaitsForIt();
    void repliesInOneBytePiecesInstallJustAsWell();
    void aHubThatClosesAfterEveryReplyIsReconnected();
    void anotherStatusEndsTheRunOnce_data();
    void anotherStatusEndsTheRunOnce();
    void aFailedRunCanBeRepeated();
    void aFailedSenderDropsTheConnectionAndIgnoresLateReplies();
    void aFinishedSenderStartsAgainOverTheSameConnection();
    void aRefusedRecallReportsFailureAndThenSuccess();
    void aRefusedRecallWhoseTokenStaysReportsFailureTwice();
    void anUnreadyExportIsPolledEverySecond();
    void whatTheDocumentLacksEndsTheRunOnce();
    void startDuringARunDropsTheRunWithoutOutcome();
    void startWhileWaitingForTheTransferLogsInAgain();
    void aSenderThatNeverStartedIsNotRunning();
    void debugLinesSayWhatHappensAndKeepTheSecrets();
};

namespace {

QString hub()
{
    return QStringLiteral("127.21.1.1");
}

const QString wholeRun = QStringLiteral("0 1 3 4 5 6 7 8 6 7 9 10");

} // namespace

void TestPresetFileSender::aRunSendsItsRequestsInOrderOverOneConnection()
{
    SenderFixture f(hub());
    QVERIFY(f.peer.isListening());
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.finished->first().first().toString(), hub());
    QVERIFY(!f.sender->isRunning());

    const QString token = QStringLiteral("T2");
    const QString digest = passwordDigest(SenderFixture::password());
    const auto file = [&](int preset, const char* storage, const QByteArray& text) {
        return InstallRequest::presetFile(hub(), token, preset, QString::fromLatin1(storage),
                                          QString::fromUtf8(text));
    };
    const QStringList expected{HttpRequest::getStatus(hub()),
                               HttpRequest::getToken(hub()),
                               HttpRequest::postAuthenticate(hub(), QStringLiteral("T1"), digest),
                               InstallRequest::startExport(hub(), token),
                               InstallRequest::fetchExport(hub(), token),
                               InstallRequest::presetEntry(hub(), token, 1, QStringLiteral("One")),
                               file(1, "hub01", FakePresets::hubFile(1)),
                               file(1, "00A0DE000001", "<device/>\n"),
                               InstallRequest::presetEntry(hub(), token, 2, QStringLiteral("Two")),
                               file(2, "hub01", FakePresets::hubFile(2)),
                               InstallRequest::recall(hub(), token, 1),
                               HttpRequest::postInvalidate(hub(), token)};
    QCOMPARE(QString::fromUtf8(f.peer.requests().join()), expected.join(QString()));
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestPresetFileSender::presetNamesArriveAsTyped()
{
    SenderFixture f(hub());
    f.doc.names = {QStringLiteral("\u00C4 \"x\" \\ y"), QStringLiteral("50%2"), QString()};
    QVERIFY(f.install());
    QByteArrayList entries;
    for (const QByteArray& request : f.peer.requests()) {
        if (stepOf(request) == InstallStep::PresetEntry) {
            entries.append(request.mid(request.indexOf("\r\n\r\n") + 4));
        }
    }
    const QByteArray rest = ", \"source-type\": 2, \"external-source\": \"\"}";
    const QByteArrayList expected{
        "{\"description\": \"\xC3\x84 \\\"x\\\" \\\\ y\", \"preset-number\": 1" + rest,
        "{\"description\": \"50%2\", \"preset-number\": 2" + rest,
        "{\"description\": \"\", \"preset-number\": 3" + rest};
    QCOMPARE(entries, expected);
}

void TestPresetFileSender::nothingIsTransferredBeforeThePageSaysSo()
{
    SenderFixture f(hub());
    const QSignalSpy loggedIn(f.sender, SIGNAL(completedLogin()));
    QVERIFY(f.logIn());
    QCOMPARE(loggedIn.count(), 1);
    QVERIFY(f.sender->isRunning());
    QCOMPARE(f.steps(), QStringLiteral("0 1 3"));
    f.sender->sendPresets();
    QVERIFY(f.waitForOutcome());
    QCOMPARE(f.steps(), wholeRun);
}

void TestPresetFileSender::sendPresetsIsOnlyForASenderThatWaitsForIt()
{
    SenderFixture f(hub());
    f.sender->sendPresets();
    f.sender->start();
    f.sender->sendPresets();
    QVERIFY(f.waitForLogIn());
    f.sender->sendPresets();
    f.sender->sendPresets();
    QVERIFY(f.waitForOutcome());
    f.sender->sendPresets();
    QVERIFY(!f.sender->isRunning());
    QCOMPARE(f.steps(), wholeRun);
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
}

void TestPresetFileSender::repliesInOneBytePiecesInstallJustAsWell()
{
    SenderFixture f(hub());
    const HubScript whole = f.script;
    for (int step = 0; step <= int(InstallStep::Invalidate); ++step) {
        const auto named = static_cast<InstallStep>(step);
        f.script.instead.insert(named, bytewise(whole.good(named).pieces.first()));
    }
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.steps(), wholeRun);
}

void TestPresetFileSender::aHubThatClosesAfterEveryReplyIsReconnected()
{
    SenderFixture f(hub());
    f.script.extraHeader = "Connection:  close \r\n";
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.steps(), wholeRun);
    QCOMPARE(f.peer.connectionCount(), 12);
}

void TestPresetFileSender::anotherStatusEndsTheRunOnce_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("steps");
    const auto row = [](InstallStep step, const char* steps) {
        QTest::addRow("step %d", int(step)) << int(step) << QString::fromLatin1(steps);
    };
    row(InstallStep::Status, "0");
    row(InstallStep::Token, "0 1");
    row(InstallStep::StartExport, "0 1 3 4");
    row(InstallStep::FetchExport, "0 1 3 4 5");
    row(InstallStep::PresetEntry, "0 1 3 4 5 6");
    row(InstallStep::HubFile, "0 1 3 4 5 6 7");
    row(InstallStep::PeripheralFile, "0 1 3 4 5 6 7 8");
    row(InstallStep::Recall, "0 1 3 4 5 6 7 8 6 7 9");
    row(InstallStep::Invalidate, "0 1 3 4 5 6 7 8 6 7 9 10");
}

void TestPresetFileSender::anotherStatusEndsTheRunOnce()
{
    QFETCH(const int, step);
    QFETCH(const QString, steps);
    for (const char* status : {"201", "500"}) {
        SenderFixture f(hub());
        f.script.instead = {{static_cast<InstallStep>(step), {{httpReply(status, "{}")}}}};
        connect(f.sender, SIGNAL(completedLogin()), f.page.get(), SLOT(senderLogin()));
        f.sender->start();
        QVERIFY(f.waitForOutcome());
        QCOMPARE(f.outcomes(), QStringLiteral("0"));
        QCOMPARE(f.steps(), steps);
        QVERIFY(!f.sender->isRunning());
        QVERIFY(!isClockRunning(f.sender));
    }
}

void TestPresetFileSender::aFailedRunCanBeRepeated()
{
    SenderFixture f(hub());
    f.script.first = {{InstallStep::HubFile, {{{httpReply("500", "{}")}}}}};
    QVERIFY(f.install());
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 1"));
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 7 ") + wholeRun);
    QCOMPARE(f.peer.connectionCount(), 2);
}

void TestPresetFileSender::aFailedSenderDropsTheConnectionAndIgnoresLateReplies()
{
    SenderFixture f(hub());
    const QByteArray late = f.script.good(InstallStep::Status).pieces.first();
    f.script.first = {{InstallStep::Status, {{{httpReply("500", "{}"), late}}}}};
    f.sender->start();
    QVERIFY(f.waitForOutcome());
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 1"));
    QCOMPARE(f.steps(), QStringLiteral("0 ") + wholeRun);
}

void TestPresetFileSender::aFinishedSenderStartsAgainOverTheSameConnection()
{
    SenderFixture f(hub());
    QVERIFY(f.install());
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("1 1"));
    QCOMPARE(f.steps(), wholeRun + u' ' + wholeRun);
    QCOMPARE(f.peer.connectionCount(), 1);
}

void TestPresetFileSender::aRefusedRecallReportsFailureAndThenSuccess()
{
    SenderFixture f(hub());
    f.script.instead = {{InstallStep::Recall, okAnswer(R"({"request": "refused"})")}};
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 1"));
    QCOMPARE(f.steps(), wholeRun);
}

void TestPresetFileSender::aRefusedRecallWhoseTokenStaysReportsFailureTwice()
{
    SenderFixture f(hub());
    f.script.instead = {{InstallStep::Recall, okAnswer(R"({"request": "refused"})")},
                        {InstallStep::Invalidate, okAnswer(R"({"status": "valid"})")}};
    QVERIFY(f.install(2));
    QCOMPARE(f.outcomes(), QStringLiteral("0 0"));
}

void TestPresetFileSender::anUnreadyExportIsPolledEverySecond()
{
    SenderFixture f(hub());
    const ScriptedAnswer unready = okAnswer("{}");
    f.script.first = {{InstallStep::FetchExport, {unready, unready}}};
    QElapsedTimer clock;
    clock.start();
    QVERIFY(f.install());
    QVERIFY(clock.elapsed() >= 2000);
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 5 5 6 7 8 6 7 9 10"));
}

void TestPresetFileSender::whatTheDocumentLacksEndsTheRunOnce()
{
    for (const int kind : {DataKind::Preset, DataKind::PresetFile, DataKind::DeviceIPList,
                           DataKind::DevicePresetFile}) {
        SenderFixture f(hub());
        f.doc.unreadableKind = kind;
        QVERIFY(f.install());
        QCOMPARE(f.outcomes(), QStringLiteral("0"));
        QVERIFY(!f.sender->isRunning());
    }
}

void TestPresetFileSender::startDuringARunDropsTheRunWithoutOutcome()
{
    SenderFixture f(hub());
    f.script.first = {{InstallStep::PresetEntry, {{}}}};
    QVERIFY(f.logIn());
    f.sender->sendPresets();
    QTRY_COMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6"));
    passSeconds(f.sender, 20);
    f.sender->start();
    QVERIFY(!f.sender->isLoggedIn());
    // The new run has all its seconds.
    passSeconds(f.sender, 15);
    QVERIFY(f.waitForLogIn());
    f.sender->sendPresets();
    QVERIFY(f.waitForOutcome());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 4 5 6 ") + wholeRun);
    QCOMPARE(f.peer.connectionCount(), 2);
}

void TestPresetFileSender::startWhileWaitingForTheTransferLogsInAgain()
{
    SenderFixture f(hub());
    QVERIFY(f.logIn());
    QVERIFY(f.install());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    QCOMPARE(f.steps(), QStringLiteral("0 1 3 ") + wholeRun);
}

void TestPresetFileSender::aSenderThatNeverStartedIsNotRunning()
{
    const SenderFixture f(hub());
    QVERIFY(!f.sender->isRunning());
    QVERIFY(!f.sender->isLoggedIn());
    QVERIFY(!f.sender->isLoginCancelled());
    QVERIFY(f.peer.requests().isEmpty());
}

void TestPresetFileSender::debugLinesSayWhatHappensAndKeepTheSecrets()
{
    SenderFixture f(hub());
    f.script.initialized = 0;
    f.doc.names = {QStringLiteral("50%2")};
    const PrintedLines printed;
    f.sender->start();
    passSeconds(f.sender, 1);
    QVERIFY(f.waitForLogIn());
    f.sender->sendPresets();
    QVERIFY(f.waitForOutcome());
    QCOMPARE(f.outcomes(), QStringLiteral("1"));
    for (const char* line :
         {"127.21.1.1 Step:0 Timeout:29", "127.21.1.1 Reply Step:0", "127.21.1.1 Reply Step:10",
          "127.21.1.1 Step:6 PresetName:50%2", "127.21.1.1 Step:7 PresetName:hub01",
          "127.21.1.1 Step:8 Index:0 MAC:00A0DE000001 body:<device/>\n"}) {
        QVERIFY2(printed.lines().contains(QString::fromLatin1(line)), line);
    }
    const QString all = printed.lines().join(u'\n');
    for (const QString& secret :
         {SenderFixture::password(), passwordDigest(SenderFixture::password()),
          QStringLiteral("T1"), QStringLiteral("T2")}) {
        QVERIFY2(!all.contains(secret), qPrintable(secret));
    }
}

TESSEL_TEST_MAIN(TestPresetFileSender)
#include "tst_presetfilesender.moc"
