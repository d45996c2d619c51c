#include "datakind.h"
#include "fakepresets.h"
#include "httprequest.h"
#include "installrequest.h"
#include "installrun.h"
#include "testcase.h"

#include <QTest>

class TestInstallRun : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stepsFollowEachOtherPresetByPreset();
    void aPresetWithoutDevicesSendsOnlyItsEntryAndTheHubsFile();
    void withOnePresetTheRecallFollowsItsLastDevice();
    void everyRequestCarriesWhatTheHubAndTheDocumentGave();
    void recallAlwaysNamesPresetOne();
    void everyOtherStatusHasItsOutcome_data();
    void everyOtherStatusHasItsOutcome();
    void whatTheHubSaysOfItsPasswordDecidesTheDialog_data();
    void whatTheHubSaysOfItsPasswordDecidesTheDialog();
    void anUnknownValueKeepsTheEarlierOne();
    void onlyAnAcceptedPasswordLeadsToTheLogIn();
    void anExportWithoutNameIsAskedForAgainAfterAPause();
    void aRefusedRecallIsReportedAndTheTokenGivenBack();
    void onlyAnInvalidTokenEndsInSuccess_data();
    void onlyAnInvalidTokenEndsInSuccess();
    void whatTheDocumentLacksEndsTheRun_data();
    void whatTheDocumentLacksEndsTheRun();
    void anUnknownDeviceEndsTheRun();
    void aPasswordIsForgottenWithItsRequest();
};

namespace {

const QString hubAddress = QStringLiteral("10.0.0.7");
const QString firstDevice = QStringLiteral("10.0.0.21");
const QString secondDevice = QStringLiteral("10.0.0.22");

QString reply(const char* body, const char* status = "200", const char* header = "")
{
    return QStringLiteral("HTTP/1.1 %1 Text\r\n%2\r\n%3")
        .arg(QString::fromLatin1(status), QString::fromLatin1(header), QString::fromUtf8(body));
}

/// What a hub answers when all goes well.
QString goodReply(InstallStep step)
{
    switch (step) {
    case InstallStep::Status:
        return reply(R"({"is-initialized": 1})");
    case InstallStep::Token:
        return reply(R"({"access-token": "T1"})");
    case InstallStep::Authenticate:
        return reply(R"({"access-token": "T2"})");
    case InstallStep::FetchExport:
        return reply("<x/>", "200", "Content-Disposition: attachment; filename=\"hub01.xml\"\r\n");
    case InstallStep::Validate:
    case InstallStep::Recall:
        return reply(R"({"request": "accepted"})");
    case InstallStep::Invalidate:
        return reply(R"({"status": "invalid"})");
    default:
        return reply("{}");
    }
}

bool isEnd(InstallMove move)
{
    return move >= InstallMove::EndInSuccess;
}

/// A run over two presets, the first with two devices, and what it has sent.
struct Fixture
{
    FakePresets doc;
    InstallRun run{hubAddress, &doc};
    QStringList requests;
    QStringList steps;

    Fixture()
    {
        doc.names = {QStringLiteral("One"), QStringLiteral("Two")};
        doc.devices = {{1, {firstDevice, secondDevice}}};
        doc.deviceFiles = {{firstDevice, QStringLiteral("<a/>")},
                           {secondDevice, QStringLiteral("<b/>")}};
        run.begin();
    }

    /// Answers well until `step` is the run's step; false when the run ended before.
    bool advanceTo(InstallStep step)
    {
        while (run.step() != step) {
            if (!advance()) {
                return false;
            }
        }
        return true;
    }

    bool advance()
    {
        steps.append(QString::number(int(run.step())));
        const auto request = run.request();
        if (!request) {
            return false;
        }
        requests.append(*request);
        const InstallMove move = run.evaluate(goodReply(run.step()));
        if (move == InstallMove::EndLogIn) {
            run.beginTransfer();
        }
        return !isEnd(move);
    }

    QString advanceToEnd()
    {
        while (advance()) {
        }
        return steps.join(u' ');
    }
};

} // namespace

void TestInstallRun::stepsFollowEachOtherPresetByPreset()
{
    Fixture f;
    f.doc.devices = {{1, {firstDevice, secondDevice}}, {2, {secondDevice}}};
    QCOMPARE(f.advanceToEnd(), QStringLiteral("0 1 3 4 5 6 7 8 8 6 7 8 9 10"));
}

void TestInstallRun::aPresetWithoutDevicesSendsOnlyItsEntryAndTheHubsFile()
{
    Fixture f;
    QCOMPARE(f.advanceToEnd(), QStringLiteral("0 1 3 4 5 6 7 8 8 6 7 9 10"));
}

void TestInstallRun::withOnePresetTheRecallFollowsItsLastDevice()
{
    Fixture f;
    f.doc.names = {QStringLiteral("Only")};
    f.run.begin();
    QCOMPARE(f.advanceToEnd(), QStringLiteral("0 1 3 4 5 6 7 8 8 9 10"));
}

void TestInstallRun::everyRequestCarriesWhatTheHubAndTheDocumentGave()
{
    Fixture f;
    f.doc.names = {QStringLiteral("50%2")};
    f.run.begin();
    QVERIFY(f.advanceTo(InstallStep::Authenticate));
    f.run.setPassword(QStringLiteral("a"));
    f.advanceToEnd();

    const QString token = QStringLiteral("T2");
    const auto file = [&](const char* storage, const QString& text) {
        return InstallRequest::presetFile(hubAddress, token, 1, QString::fromLatin1(storage), text);
    };
    QCOMPARE(f.requests,
             QStringList(
                 {HttpRequest::getStatus(hubAddress), HttpRequest::getToken(hubAddress),
                  HttpRequest::postAuthenticate(hubAddress, QStringLiteral("T1"),
                                                QStringLiteral("0cc175b9c0f1b6a831c399e269772661")),
                  InstallRequest::startExport(hubAddress, token),
                  InstallRequest::fetchExport(hubAddress, token),
                  InstallRequest::presetEntry(hubAddress, token, 1, QStringLiteral("50%2")),
                  file("hub01", QString::fromUtf8(FakePresets::hubFile(1))),
                  file("00A0DE000001", QStringLiteral("<a/>")),
                  file("00A0DE000002", QStringLiteral("<b/>")),
                  InstallRequest::recall(hubAddress, token, 1),
                  HttpRequest::postInvalidate(hubAddress, token)}));
}

void TestInstallRun::recallAlwaysNamesPresetOne()
{
    Fixture f;
    QVERIFY(f.advanceTo(InstallStep::Recall));
    QVERIFY(f.run.request()->endsWith(QStringLiteral(R"({"preset-number": 1})")));
}

void TestInstallRun::everyOtherStatusHasItsOutcome_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("move");
    const auto row = [](const char* name, InstallStep step, InstallMove move) {
        QTest::newRow(name) << int(step) << int(move);
    };
    row("status", InstallStep::Status, InstallMove::EndByStatus);
    row("token", InstallStep::Token, InstallMove::EndByStatus);
    row("validate", InstallStep::Validate, InstallMove::AskInitialPassword);
    row("authenticate", InstallStep::Authenticate, InstallMove::AskPasswordAgain);
    row("start of the export", InstallStep::StartExport, InstallMove::EndByStatus);
    row("the export", InstallStep::FetchExport, InstallMove::EndByStatus);
    row("preset entry", InstallStep::PresetEntry, InstallMove::EndByStatus);
    row("hub file", InstallStep::HubFile, InstallMove::EndByStatus);
    row("device file", InstallStep::PeripheralFile, InstallMove::EndByStatus);
    row("recall", InstallStep::Recall, InstallMove::EndByStatus);
    row("invalidate", InstallStep::Invalidate, InstallMove::EndByStatus);
}

void TestInstallRun::everyOtherStatusHasItsOutcome()
{
    QFETCH(const int, step);
    QFETCH(const int, move);
    const auto wanted = static_cast<InstallStep>(step);
    for (const char* status : {"201", "401", "500", ""}) {
        Fixture f;
        if (wanted == InstallStep::Validate) {
            f.run.evaluate(reply(R"({"is-initialized": 0})"));
        }
        QVERIFY(f.advanceTo(wanted));
        QString answer = goodReply(wanted);
        answer.replace(QStringLiteral("200"), QString::fromLatin1(status));
        QCOMPARE(int(f.run.evaluate(answer)), move);
        QCOMPARE(f.run.step(), wanted);
    }
}

void TestInstallRun::whatTheHubSaysOfItsPasswordDecidesTheDialog_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("move");
    const int initial = int(InstallMove::AskInitialPassword);
    const int password = int(InstallMove::AskPassword);
    QTest::newRow("0: no password yet") << QStringLiteral(R"({"is-initialized": 0})") << initial;
    QTest::newRow("1: a password") << QStringLiteral(R"({"is-initialized": 1})") << password;
    QTest::newRow("2 keeps the value at the beginning, 0")
        << QStringLiteral(R"({"is-initialized": 2})") << initial;
    QTest::newRow("no value reads as 0") << QStringLiteral("{}") << initial;
}

void TestInstallRun::whatTheHubSaysOfItsPasswordDecidesTheDialog()
{
    QFETCH(const QString, body);
    Fixture f;
    QCOMPARE(f.run.evaluate(reply(qPrintable(body))), InstallMove::Send);
    QTEST(int(f.run.evaluate(goodReply(InstallStep::Token))), "move");
}

void TestInstallRun::anUnknownValueKeepsTheEarlierOne()
{
    Fixture f;
    f.run.evaluate(reply(R"({"is-initialized": 1})"));
    f.run.begin();
    f.run.evaluate(reply(R"({"is-initialized": 2})"));
    QCOMPARE(f.run.evaluate(goodReply(InstallStep::Token)), InstallMove::AskPassword);
}

void TestInstallRun::onlyAnAcceptedPasswordLeadsToTheLogIn()
{
    Fixture f;
    f.run.evaluate(reply(R"({"is-initialized": 0})"));
    f.run.evaluate(goodReply(InstallStep::Token));
    for (const char* body : {R"({"request": "refused"})", R"({"request": 1})", "{}", "accepted"}) {
        QCOMPARE(f.run.evaluate(reply(body)), InstallMove::AskInitialPassword);
        QCOMPARE(f.run.step(), InstallStep::Validate);
    }
    f.run.setPassword(QStringLiteral("a"));
    QCOMPARE(f.run.request(),
             InstallRequest::validate(hubAddress, QStringLiteral("T1"),
                                      QStringLiteral("0cc175b9c0f1b6a831c399e269772661")));
    QCOMPARE(f.run.evaluate(reply(R"({"request": "accepted"})")), InstallMove::AskPassword);
    QCOMPARE(f.run.step(), InstallStep::Authenticate);
}

void TestInstallRun::anExportWithoutNameIsAskedForAgainAfterAPause()
{
    Fixture f;
    QVERIFY(f.advanceTo(InstallStep::FetchExport));
    QCOMPARE(f.run.evaluate(reply("{}")), InstallMove::SendAfterPause);
    QCOMPARE(f.run.step(), InstallStep::FetchExport);
    QCOMPARE(f.run.evaluate(goodReply(InstallStep::FetchExport)), InstallMove::Send);
    QCOMPARE(f.run.step(), InstallStep::PresetEntry);
}

void TestInstallRun::aRefusedRecallIsReportedAndTheTokenGivenBack()
{
    Fixture f;
    QVERIFY(f.advanceTo(InstallStep::Recall));
    QCOMPARE(f.run.evaluate(reply(R"({"request": "refused"})")), InstallMove::SendAfterRefusal);
    QCOMPARE(f.run.step(), InstallStep::Invalidate);
    QCOMPARE(f.run.request(), HttpRequest::postInvalidate(hubAddress, QStringLiteral("T2")));
}

void TestInstallRun::onlyAnInvalidTokenEndsInSuccess_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("move");
    QTest::newRow("invalid") << QStringLiteral(R"({"status": "invalid"})")
                             << int(InstallMove::EndInSuccess);
    QTest::newRow("valid") << QStringLiteral(R"({"status": "valid"})")
                           << int(InstallMove::EndUnconfirmed);
    QTest::newRow("no word") << QStringLiteral("{}") << int(InstallMove::EndUnconfirmed);
}

void TestInstallRun::onlyAnInvalidTokenEndsInSuccess()
{
    QFETCH(const QString, body);
    Fixture f;
    QVERIFY(f.advanceTo(InstallStep::Invalidate));
    QTEST(int(f.run.evaluate(reply(qPrintable(body)))), "move");
    // The token is not used again, however the hub put it.
    QCOMPARE(f.run.request(), HttpRequest::postInvalidate(hubAddress, QString()));
}

void TestInstallRun::whatTheDocumentLacksEndsTheRun_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("steps");
    QTest::newRow("the preset's name") << DataKind::Preset << QStringLiteral("0 1 3 4 5 6");
    QTest::newRow("the hub's file") << DataKind::PresetFile << QStringLiteral("0 1 3 4 5 6 7");
    QTest::newRow("the list of devices")
        << DataKind::DeviceIPList << QStringLiteral("0 1 3 4 5 6 7");
    QTest::newRow("a device's file")
        << DataKind::DevicePresetFile << QStringLiteral("0 1 3 4 5 6 7 8");
}

void TestInstallRun::whatTheDocumentLacksEndsTheRun()
{
    QFETCH(const int, kind);
    Fixture f;
    f.doc.unreadableKind = kind;
    QTEST(f.advanceToEnd(), "steps");
}

void TestInstallRun::anUnknownDeviceEndsTheRun()
{
    Fixture f;
    f.doc.deviceFiles.remove(secondDevice);
    QCOMPARE(f.advanceToEnd(), QStringLiteral("0 1 3 4 5 6 7 8 8"));
    QCOMPARE(f.requests.size(), 8);
}

void TestInstallRun::aPasswordIsForgottenWithItsRequest()
{
    Fixture f;
    QVERIFY(f.advanceTo(InstallStep::Authenticate));
    f.run.setPassword(QStringLiteral("a"));
    QVERIFY(f.run.request()->contains(QStringLiteral("0cc175b9c0f1b6a831c399e269772661")));
    QVERIFY(f.run.request()->endsWith(QStringLiteral(R"("password": ""})")));
}

TESSEL_TEST_MAIN(TestInstallRun)
#include "tst_installrun.moc"
