#include "installwords.h"
#include "testcase.h"

#include <QTest>

/// What people read of an installation: every request, every way to fail, and how far it is.
class TestInstallWords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRequestHasItsWords_data();
    void everyRequestHasItsWords();
    void noTwoRequestsHaveTheSameWords();
    void everyTroubleHasItsWords_data();
    void everyTroubleHasItsWords();
    void theReasonNamesRequestAndTrouble();
    void whatTheHubSaysIsTakenLiterally();
    void withoutTroubleThereIsNothingToSay();
    void progressIsToldInFiles();
};

namespace {

const QString device = QStringLiteral("192.168.0.17");

} // namespace

void TestInstallWords::everyRequestHasItsWords_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("words");
    const auto row = [](InstallStep step, const char* words) {
        QTest::addRow("step %d", int(step)) << int(step) << QString::fromLatin1(words);
    };
    row(InstallStep::Status, "asking for the hub's state");
    row(InstallStep::Token, "asking for leave to log in");
    row(InstallStep::Validate, "setting the first password");
    row(InstallStep::Authenticate, "logging in");
    row(InstallStep::StartExport, "starting the export of the hub's configuration");
    row(InstallStep::FetchExport, "fetching the export of the hub's configuration");
    row(InstallStep::PresetEntry, "making the preset of layout 2");
    row(InstallStep::HubFile, "storing the hub's own file for layout 2");
    row(InstallStep::PeripheralFile, "storing the file of 192.168.0.17 for layout 2");
    row(InstallStep::Recall, "recalling the preset of layout 1");
    row(InstallStep::Invalidate, "logging out");
}

void TestInstallWords::everyRequestHasItsWords()
{
    QFETCH(const int, step);
    QFETCH(const QString, words);
    QCOMPARE(requestWords({InstallStep(step), 2, device}), words);
}

void TestInstallWords::noTwoRequestsHaveTheSameWords()
{
    QStringList words;
    for (int step = 0; step < installStepCount; ++step) {
        words.append(requestWords({InstallStep(step), 1, device}));
    }
    QCOMPARE(words.removeDuplicates(), 0);
    QVERIFY(!words.contains(QString()));
}

void TestInstallWords::everyTroubleHasItsWords_data()
{
    QTest::addColumn<int>("trouble");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("words");
    const auto row = [](InstallTrouble trouble, const char* words, const char* status = "") {
        QTest::newRow(words) << int(trouble) << QString::fromLatin1(status)
                             << QString::fromLatin1(words);
    };
    row(InstallTrouble::None, "");
    row(InstallTrouble::OtherStatus, "the hub answered 507 Insufficient Storage",
        "507 Insufficient Storage");
    row(InstallTrouble::OtherStatus, "the hub answered without a status");
    row(InstallTrouble::NotConfirmed, "the hub answered, but did not do it");
    row(InstallTrouble::ConnectionRefused, "the connection was refused");
    row(InstallTrouble::Unreachable, "the hub's address cannot be reached");
    row(InstallTrouble::ConnectionBroken, "the hub closed the connection before it had answered");
    row(InstallTrouble::Silence, "no answer for 30 seconds");
    row(InstallTrouble::Cancelled, "you cancelled the log-in");
    row(InstallTrouble::BrokenOff, "it was broken off and is not finished");
    row(InstallTrouble::MissingRecords, "what was entered for it is missing");
}

void TestInstallWords::everyTroubleHasItsWords()
{
    QFETCH(const int, trouble);
    QFETCH(const QString, status);
    QFETCH(const QString, words);
    QCOMPARE(troubleWords({.trouble = InstallTrouble(trouble), .status = status}), words);
}

void TestInstallWords::theReasonNamesRequestAndTrouble()
{
    const InstallOutcome full{.trouble = InstallTrouble::OtherStatus,
                              .place = {InstallStep::PeripheralFile, 2, device},
                              .status = QStringLiteral("507 Insufficient Storage")};
    QCOMPARE(reasonWords(full), QStringLiteral("Storing the file of 192.168.0.17 for layout 2: "
                                               "the hub answered 507 Insufficient Storage"));
    const InstallOutcome refusedRecall{.isInstalled = true,
                                       .trouble = InstallTrouble::NotConfirmed,
                                       .place = {InstallStep::Recall}};
    QCOMPARE(reasonWords(refusedRecall), QStringLiteral("Recalling the preset of layout 1: the hub "
                                                        "answered, but did not do it"));
}

void TestInstallWords::whatTheHubSaysIsTakenLiterally()
{
    const InstallOutcome odd{.trouble = InstallTrouble::OtherStatus,
                             .place = {InstallStep::PeripheralFile, 2, QStringLiteral("%2 %1")},
                             .status = QStringLiteral("500 %1 %2")};
    QCOMPARE(reasonWords(odd), QStringLiteral("Storing the file of %2 %1 for layout 2: the hub "
                                              "answered 500 %1 %2"));
}

void TestInstallWords::withoutTroubleThereIsNothingToSay()
{
    QCOMPARE(reasonWords({.isInstalled = true}), QString());
    QCOMPARE(reasonWords({}), QString());
}

void TestInstallWords::progressIsToldInFiles()
{
    QCOMPARE(progressWords({}), QString());
    QCOMPARE(progressWords({.filesStored = 12, .filesToStore = 40}),
             QStringLiteral("12 of 40 files stored"));
}

TESSEL_TEST_MAIN(TestInstallWords)
#include "tst_installwords.moc"
