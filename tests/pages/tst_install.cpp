#include "datakey.h"
#include "datakind.h"
#include "devicequeries.h"
#include "install.h"
#include "installhall.h"
#include "pagefixtures.h"
#include "tablefixtures.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <memory>
#include <utility>

class TestInstall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToDo();
    void hubsOfRoomsAreListedByHostname();
    void aHubAssignedToNoRoomIsNotListed();
    void everyHubEndsDoneAndHoldsItsPresets();
    void aHubWithoutPasswordGetsOneFirst();
    void aWrongPasswordIsAskedForAgain();
    void noTransferStartsBeforeTheSecondDialogIsAnsweredAlthoughTheFirstWasCancelled();
    void aCancelledHubEndsAsErrorAndHoldsNothing();
    void aHubThatFailsBeforeItsLogInHoldsNobodyBack_data();
    void aHubThatFailsBeforeItsLogInHoldsNobodyBack();
    void aHubThatFailsDuringTheTransferLeavesTheOthersAlone();
    void executeAgainRestartsEveryListedHubAlsoThoseThatAreDone();
    void theDialogOfALaterRunShowsTheNameOfNowAndWhatWasTyped();
    void aHubThatIsNoLongerListedIsNotInstalledAgain();
    void aHubListedLaterIsInstalledToo();
    void hubsSortedByStatusAreAllInstalled();
    void aHubListedInTwoRowsIsInstalledOnceAndShowsItsStatusInBoth();
    void aFinishReportOfAnUnlistedHubChangesNoRow();
    void theIdentifyButtonMakesTheHubIdentifyItself();
    void theIdentifyButtonOfADialogMakesTheHubIdentifyItself();
    void destroyedDuringAnInstallationNothingBreaks();
    void destroyedWhileADialogIsOpenNothingBreaks();
};

namespace {

const QString base = QStringLiteral("127.51.8.1");

Fault status(Exchange exchange, int code, int times = -1)
{
    Fault fault;
    fault.exchange = exchange;
    fault.kind = FaultKind::Status;
    fault.number = code;
    fault.times = times;
    return fault;
}

Fault slow(Exchange exchange, int ms)
{
    Fault fault;
    fault.exchange = exchange;
    fault.kind = FaultKind::Slow;
    fault.number = ms;
    return fault;
}

} // namespace

void TestInstall::saysWhatToDo()
{
    const InstallHall step(base, 1);
    const QStringList texts = labelTexts(step.page);
    for (const char* text :
         {"Configure the presets on the PX-HBs.",
          "The password for each PX-HB is required to install the presets.", "PX-HB"}) {
        QVERIFY2(texts.contains(QString::fromLatin1(text)), text);
    }
    const QStringList headers{QStringLiteral("Hostname"), QString(), QStringLiteral("IP Address"),
                              QStringLiteral("Status")};
    QCOMPARE(step.list()->columnCount(), int(headers.size()));
    for (int column = 0; column < headers.size(); ++column) {
        QCOMPARE(step.list()->headerItem()->text(column), headers.at(column));
    }
}

void TestInstall::hubsOfRoomsAreListedByHostname()
{
    InstallHall step(base, 2);
    addTestDevice(step.doc, QStringLiteral("A-variant"), QStringLiteral("PX-HB2"),
                  QStringLiteral("127.51.8.9"), 2);
    addTestDevice(step.doc, QStringLiteral("microphone"), QStringLiteral("PX-DL"),
                  QStringLiteral("127.51.8.10"), 2);
    step.page.enterFrom(7);
    QCOMPARE(columnTexts(*step.list(), "Hostname").join(u' '),
             QStringLiteral("A-variant Hub-1 Hub-2"));
    QCOMPARE(columnTexts(*step.list(), "IP Address").join(u' '),
             QStringLiteral("127.51.8.9 127.51.8.1 127.51.8.2"));
    QCOMPARE(columnTexts(*step.list(), "Status").join(QString()), QString());
}

void TestInstall::aHubAssignedToNoRoomIsNotListed()
{
    InstallHall step(base, 2);
    setDeviceRoom(step.doc, step.address(1), 0);
    step.page.enterFrom(7);
    QCOMPARE(columnTexts(*step.list(), "IP Address"), QStringList{step.address(2)});
}

void TestInstall::everyHubEndsDoneAndHoldsItsPresets()
{
    const InstallHall step(base, 4);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done Done Done"));
    for (int number = 1; number <= 4; ++number) {
        const SimulatedHub* hub = step.hub(number);
        QCOMPARE(hub->presets().size(), 2);
        QCOMPARE(hub->presets().value(1).description(), QStringLiteral("Room %1").arg(number));
        QCOMPARE(hub->presets().value(2).description(), QStringLiteral("All \"rooms\""));
        QCOMPARE(hub->recalledPreset(), 1);
    }
    QCOMPARE(step.hall.differences(), QStringList());
}

void TestInstall::aHubWithoutPasswordGetsOneFirst()
{
    HallDescription description =
        HallDescription::byCounts(1, 0, QStringLiteral("127.51.8.20")).value();
    description.hubs.first().exportPolls = 0;
    Hall newHub(description);
    QString error;
    QVERIFY2(newHub.start(&error), qPrintable(error));
    InstallHall step(base, 1);
    addTestDevice(step.doc, QStringLiteral("New"), QStringLiteral("PX-HB"),
                  QStringLiteral("127.51.8.20"), 1);
    step.page.enterFrom(7);
    press(step.execute());
    QTRY_COMPARE(step.answers.prompts().count(QStringLiteral("127.51.8.20")), 2);
    QTRY_VERIFY(newHub.hubs().first()->isInitialised());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
}

void TestInstall::aWrongPasswordIsAskedForAgain()
{
    InstallHall step(base, 1);
    step.answers.type(step.address(1), {QStringLiteral("wrong")});
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    QCOMPARE(step.answers.prompts().size(), 2);
}

void TestInstall::noTransferStartsBeforeTheSecondDialogIsAnsweredAlthoughTheFirstWasCancelled()
{
    InstallHall step(base, 3);
    // The held dialog comes first and the others open over it, so that they can be answered.
    step.setFault(1, slow(Exchange::Token, 500));
    step.setFault(3, slow(Exchange::Token, 500));
    step.answers.cancel(step.address(1));
    QString statuses;
    qsizetype transfers = -1;
    step.answers.hold(
        step.address(2),
        [&] { return step.status(1) == u"Error" && step.hub(3)->logInCount() == 1; },
        [&] {
            statuses = step.statuses();
            transfers = timesAsked(*step.hub(3), Exchange::StartExport);
        });
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Error Done Done"));
    QCOMPARE(statuses, QStringLiteral("Error Installing... Installing..."));
    QCOMPARE(transfers, 0);
    QCOMPARE(timesAsked(*step.hub(3), Exchange::StartExport), 1);
}

void TestInstall::aCancelledHubEndsAsErrorAndHoldsNothing()
{
    InstallHall step(base, 2);
    step.answers.cancel(step.address(2));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Error"));
    QVERIFY(step.hub(2)->presets().isEmpty());
    QCOMPARE(step.hub(1)->presets().size(), 2);
}

void TestInstall::aHubThatFailsBeforeItsLogInHoldsNobodyBack_data()
{
    QTest::addColumn<int>("exchange");
    QTest::addColumn<int>("delay");
    QTest::newRow("its first answer, before the others are logged in")
        << int(Exchange::Status) << 0;
    QTest::newRow("its first answer, after the others are logged in")
        << int(Exchange::Status) << 400;
    QTest::newRow("its token, after the others are logged in") << int(Exchange::Token) << 400;
}

void TestInstall::aHubThatFailsBeforeItsLogInHoldsNobodyBack()
{
    QFETCH(const int, exchange);
    QFETCH(const int, delay);
    const InstallHall step(base, 3);
    step.setFault(1, slow(static_cast<Exchange>(exchange), delay));
    step.setFault(1, status(static_cast<Exchange>(exchange), 500));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Error Done Done"));
    for (const int number : {2, 3}) {
        QCOMPARE(timesAsked(*step.hub(number), Exchange::StartExport), 1);
    }
}

void TestInstall::aHubThatFailsDuringTheTransferLeavesTheOthersAlone()
{
    const InstallHall step(base, 3);
    step.setFault(2, status(Exchange::StartExport, 503));
    step.setFault(1, slow(Exchange::ReadExport, 200));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Error Done"));
    // Its failure let the page look at the log-ins again: nobody was sent anything twice.
    QCOMPARE(timesAsked(*step.hub(1), Exchange::StartExport), 1);
    QCOMPARE(timesAsked(*step.hub(3), Exchange::StartExport), 1);
}

void TestInstall::executeAgainRestartsEveryListedHubAlsoThoseThatAreDone()
{
    InstallHall step(base, 3);
    step.answers.cancel(step.address(3));
    step.setFault(2, status(Exchange::Recall, 500, 1));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Error Error"));
    press(step.execute());
    QCOMPARE(step.statuses(), QStringLiteral("Installing... Installing... Installing..."));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done Done"));
    QCOMPARE(step.hub(1)->logInCount(), 2);
    QCOMPARE(timesAsked(*step.hub(1), Exchange::Recall), 2);
    QCOMPARE(step.hub(3)->logInCount(), 1);
}

void TestInstall::theDialogOfALaterRunShowsTheNameOfNowAndWhatWasTyped()
{
    InstallHall step(base, 1);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    press(buttonOf(step.page, "backButton"));
    setDeviceLabel(step.doc, step.address(1), QStringLiteral("Stage"));
    step.page.enterFrom(7);
    QString named;
    QString identify;
    QString typed;
    step.answers.hold(
        step.address(1), [] { return true; },
        [&] {
            const QWidget* dialog = QApplication::activeModalWidget();
            const QTreeWidget* hubs = tableOf(*dialog, "hubList");
            named = textIn(*hubs->topLevelItem(0), "Hostname");
            identify = namedWidgetIn(hubs->topLevelItem(0), "Identify")->accessibleName();
            typed = dialog->findChild<QLineEdit*>()->text();
        });
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(named, QStringLiteral("Stage"));
    QCOMPARE(identify, QStringLiteral("Identify Stage"));
    QCOMPARE(typed, QStringLiteral("secret7"));
}

void TestInstall::aHubThatIsNoLongerListedIsNotInstalledAgain()
{
    InstallHall step(base, 2);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    setDeviceRoom(step.doc, step.address(1), 0);
    step.page.enterFrom(7);
    step.hub(1)->clearJournal();
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(step.hub(1)->exchangeNames(), QStringList());
}

void TestInstall::aHubListedLaterIsInstalledToo()
{
    InstallHall step(base, 2);
    setDeviceRoom(step.doc, step.address(2), 0);
    step.page.enterFrom(7);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    QVERIFY(step.hub(2)->presets().isEmpty());
    setDeviceRoom(step.doc, step.address(2), 2);
    step.page.enterFrom(7);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(step.hub(2)->presets().size(), 2);
}

void TestInstall::hubsSortedByStatusAreAllInstalled()
{
    const InstallHall step(base, 4);
    step.list()->sortByColumn(3, Qt::AscendingOrder);
    step.setFault(2, status(Exchange::Token, 500, 1));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done Done Error"));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done Done Done"));
}

void TestInstall::aHubListedInTwoRowsIsInstalledOnceAndShowsItsStatusInBoth()
{
    InstallHall step(base, 2);
    QVERIFY(
        step.doc.addData(DataKind::Device, {{DataKey::deviceIPAddress(), step.address(2)},
                                            {DataKey::deviceModelName(), QStringLiteral("PX-HB")},
                                            {DataKey::deviceLabel(), QStringLiteral("A-again")},
                                            {DataKey::deviceVersion(), QStringLiteral("2.1")},
                                            {DataKey::roomNumber(), 2}}));
    step.page.enterFrom(7);
    step.list()->sortByColumn(3, Qt::AscendingOrder);
    press(step.execute());
    QCOMPARE(step.statuses(), QStringLiteral("Installing... Installing... Installing..."));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done Done"));
    QCOMPARE(step.execute()->text(), QStringLiteral("Next"));
    QCOMPARE(step.hub(2)->logInCount(), 1);
    QCOMPARE(timesAsked(*step.hub(2), Exchange::Token), 1);
    QCOMPARE(timesAsked(*step.hub(2), Exchange::HubFile), 2);
}

void TestInstall::aFinishReportOfAnUnlistedHubChangesNoRow()
{
    const InstallHall step(base, 2);
    auto* install = step.page.findChild<Install*>();
    QSignalSpy changed(install, SIGNAL(statusChanged()));
    install->presetSendFinished(QStringLiteral("127.51.8.99"), 1);
    QCOMPARE(step.statuses().trimmed(), QString());
    QCOMPARE(changed.size(), 1);
}

void TestInstall::theIdentifyButtonMakesTheHubIdentifyItself()
{
    const InstallHall step(base, 2);
    QTreeWidgetItem* row = rowWith(*step.list(), "IP Address", step.address(2));
    press(namedWidgetIn(row, "Identify"));
    QTRY_COMPARE(step.hub(2)->identifyCount(), 1);
    QCOMPARE(step.hub(1)->identifyCount(), 0);
}

void TestInstall::theIdentifyButtonOfADialogMakesTheHubIdentifyItself()
{
    InstallHall step(base, 1);
    int identified = 0;
    bool pressed = false;
    const auto pressAndSee = [&] {
        auto* list = tableOf(*QApplication::activeModalWidget(), "hubList");
        if (!std::exchange(pressed, true)) {
            press(namedWidgetIn(list->topLevelItem(0), "Identify"));
        }
        return step.hub(1)->identifyCount() > 0;
    };
    step.answers.hold(step.address(1), pressAndSee,
                      [&] { identified = step.hub(1)->identifyCount(); });
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    QCOMPARE(identified, 1);
}

void TestInstall::destroyedDuringAnInstallationNothingBreaks()
{
    InstallHall step(base, 3);
    auto page = std::make_unique<PageInstall>(&step.controller, &step.doc, nullptr);
    page->enterFrom(7);
    page->show();
    step.setFault(2, slow(Exchange::StartExport, 300));
    press(buttonOf(*page, "executeButton"));
    QTRY_COMPARE(timesAsked(*step.hub(1), Exchange::StartExport), 1);
    page.reset();
    QTRY_COMPARE(timesAsked(*step.hub(2), Exchange::StartExport), 1);
    QVERIFY(step.hub(2)->presets().isEmpty());
}

void TestInstall::destroyedWhileADialogIsOpenNothingBreaks()
{
    InstallHall step(base, 2);
    auto page = std::make_unique<PageInstall>(&step.controller, &step.doc, nullptr);
    page->enterFrom(7);
    page->show();
    step.answers.hold(
        step.address(1), [] { return true; }, [&] { page.reset(); });
    press(buttonOf(*page, "executeButton"));
    QTRY_VERIFY(!page);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(step.hub(1)->logInCount(), 0);
}

TESSEL_TEST_MAIN(TestInstall)
#include "tst_install.moc"
