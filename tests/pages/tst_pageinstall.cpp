#include "devicequeries.h"
#include "install.h"
#include "installhall.h"
#include "pagefixtures.h"
#include "tablefixtures.h"
#include "testcase.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

class TestPageInstall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isStepEightWithBackAndExecute();
    void withNoHubListedExecuteDoesNothingAndTheButtonStaysExecute();
    void whileAHubIsInstallingTheButtonIsDisabled();
    void whenAllHubsAreDoneExecuteBecomesNextAndClosingAsksNothing();
    void whenAHubFailedTheButtonStaysExecuteForAnotherTry();
    void aReportForAHubThatIsNotListedReevaluatesTheButton();
    void backGoesBackAndResetsTheButton();
    void backStopsNoInstallation();
    void forthAgainDuringAnInstallationShowsWhatIsStillRunning();
    void aHubThatPreparesForEverHoldsUpNobodyAndCanBeTriedAgain();
    void forthAgainAfterAllWasDoneOffersExecuteAnewAndStaysReportedAsInstalled();
    void whileHubsAreInstalledAgainNothingIsReportedAsInstalled();
    void whatChangesDuringAnInstallationIsNotInstalled_data();
    void whatChangesDuringAnInstallationIsNotInstalled();
    void aFinishOnThePageBeforeDoesNotLetTheUserPassWithoutExecute();
    void restoringListsTheHubs();
    void comingBackFromALaterStepKeepsTheStatuses();
    void worksWithTheKeyboard();
    void theKeyboardIsBackOnTheButtonWhenItsRunIsOver_data();
    void theKeyboardIsBackOnTheButtonWhenItsRunIsOver();
    void theKeyboardStaysWhereTheUserTookItMeanwhile();
    void theKeyboardIsNotTakenFromThePageBefore();
};

namespace {

const QString base = QStringLiteral("127.51.9.1");

Fault slow(Exchange exchange)
{
    Fault fault;
    fault.exchange = exchange;
    fault.kind = FaultKind::Slow;
    fault.number = 1000;
    return fault;
}

Fault refusal(Exchange exchange)
{
    Fault fault;
    fault.exchange = exchange;
    fault.kind = FaultKind::Status;
    fault.number = 500;
    fault.times = 1;
    return fault;
}

/// The keyboard goes to the window in front.
bool activate(InstallHall& step)
{
    step.page.activateWindow();
    return QTest::qWaitForWindowActive(&step.page);
}

void takeHubsOutOfTheirRooms(InstallHall& step, int hubs)
{
    for (int number = 1; number <= hubs; ++number) {
        setDeviceRoom(step.doc, step.address(number), 0);
    }
    step.page.enterFrom(7);
}

} // namespace

void TestPageInstall::isStepEightWithBackAndExecute()
{
    const InstallHall step(base, 1);
    QCOMPARE(step.page.title(), QStringLiteral("8. Install Presets"));
    QCOMPARE(step.page.pageNumber(), 8);
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
    QCOMPARE(buttonOf(step.page, "backButton")->text(), QStringLiteral("Back"));
    QCOMPARE(step.page.findChildren<QPushButton*>().size(), 2);
}

void TestPageInstall::withNoHubListedExecuteDoesNothingAndTheButtonStaysExecute()
{
    InstallHall step(base, 1);
    takeHubsOutOfTheirRooms(step, 1);
    press(step.execute());
    QCOMPARE(step.list()->topLevelItemCount(), 0);
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
    QVERIFY(!step.controller.installDone);
    QCOMPARE(step.controller.nexts, 0);
}

void TestPageInstall::whileAHubIsInstallingTheButtonIsDisabled()
{
    const InstallHall step(base, 2);
    step.setFault(2, slow(Exchange::Recall));
    press(step.execute());
    QCOMPARE(step.statuses(), QStringLiteral("Installing... Installing..."));
    QVERIFY(!step.execute()->isEnabled());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Installing..."));
    QVERIFY(!step.execute()->isEnabled());
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QVERIFY(step.execute()->isEnabled());
}

void TestPageInstall::whenAllHubsAreDoneExecuteBecomesNextAndClosingAsksNothing()
{
    const InstallHall step(base, 2);
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    QCOMPARE(step.statuses(), QStringLiteral("Done Done"));
    QVERIFY(step.execute()->isEnabled());
    QVERIFY(step.controller.installDone);
    QCOMPARE(step.controller.nexts, 0);
    press(step.execute());
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(step.hub(1)->logInCount(), 1);
}

void TestPageInstall::whenAHubFailedTheButtonStaysExecuteForAnotherTry()
{
    const InstallHall step(base, 2);
    step.setFault(1, refusal(Exchange::PresetEntry));
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Error Done"));
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
    QVERIFY(!step.controller.installDone);
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    QVERIFY(step.controller.installDone);
}

void TestPageInstall::aReportForAHubThatIsNotListedReevaluatesTheButton()
{
    InstallHall step(base, 1);
    step.controller.installDone = true;
    step.execute()->setEnabled(false);
    step.page.findChild<Install*>()->presetSendFinished(QStringLiteral("127.51.9.99"), 1);
    QVERIFY(!step.controller.installDone);
    QVERIFY(step.execute()->isEnabled());
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
}

void TestPageInstall::backGoesBackAndResetsTheButton()
{
    const InstallHall step(base, 1);
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
}

void TestPageInstall::backStopsNoInstallation()
{
    const InstallHall step(base, 2);
    step.setFault(1, slow(Exchange::StartExport));
    press(step.execute());
    QTRY_COMPARE(timesAsked(*step.hub(2), Exchange::StartExport), 1);
    press(buttonOf(step.page, "backButton"));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(step.hub(1)->presets().size(), 2);
}

void TestPageInstall::aHubThatPreparesForEverHoldsUpNobodyAndCanBeTriedAgain()
{
    HallDescription description = quickHall(base, 3, 0);
    description.hubs.first().exportPolls = HubDescription::maxExportPolls;
    InstallHall step(description);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Installing... Done Done"));
    QVERIFY(!step.execute()->isEnabled());
    // It is asked again and again.
    QTRY_VERIFY(timesAsked(*step.hub(1), Exchange::ReadExport) >= 3);

    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    step.page.enterFrom(7);
    const qsizetype logIns = step.hub(1)->logInCount();
    press(step.execute());
    QVERIFY(!step.execute()->isEnabled());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Installing... Done Done"));
    QCOMPARE(step.hub(1)->logInCount(), logIns + 1);
    QCOMPARE(step.hub(2)->logInCount(), 2);
}

void TestPageInstall::forthAgainDuringAnInstallationShowsWhatIsStillRunning()
{
    InstallHall step(base, 2);
    step.setFault(1, slow(Exchange::Recall));
    press(step.execute());
    QTRY_COMPARE(step.status(2), QStringLiteral("Done"));
    press(buttonOf(step.page, "backButton"));
    step.page.enterFrom(7);
    QCOMPARE(step.status(1), QStringLiteral("Installing..."));
    QCOMPARE(step.status(2), QString());
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY2(step.execute()->isEnabled(), "what still runs keeps nobody from trying again");
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    QVERIFY(step.execute()->isEnabled());
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
}

void TestPageInstall::forthAgainAfterAllWasDoneOffersExecuteAnewAndStaysReportedAsInstalled()
{
    InstallHall step(base, 1);
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    press(buttonOf(step.page, "backButton"));
    step.page.enterFrom(7);
    QCOMPARE(step.statuses(), QString());
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
    QVERIFY(step.controller.installDone);
}

void TestPageInstall::whileHubsAreInstalledAgainNothingIsReportedAsInstalled()
{
    InstallHall step(base, 2);
    press(step.execute());
    QTRY_VERIFY(step.controller.installDone);
    press(buttonOf(step.page, "backButton"));
    step.page.enterFrom(7);
    step.setFault(1, refusal(Exchange::PresetEntry));
    press(step.execute());
    QVERIFY(!step.controller.installDone);
    QTRY_COMPARE(step.statuses(), QStringLiteral("Error Done"));
    QVERIFY(!step.controller.installDone);
    press(step.execute());
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QVERIFY(step.controller.installDone);
}

void TestPageInstall::whatChangesDuringAnInstallationIsNotInstalled_data()
{
    QTest::addColumn<bool>("isTakenBack");
    QTest::addColumn<bool>("isEnteredMeanwhile");
    QTest::newRow("and stays") << false << false;
    QTest::newRow("and is taken back after a hub was done") << true << false;
    QTest::newRow("and is taken back after the step was entered") << true << true;
}

void TestPageInstall::whatChangesDuringAnInstallationIsNotInstalled()
{
    QFETCH(const bool, isTakenBack);
    QFETCH(const bool, isEnteredMeanwhile);
    InstallHall step(base, isEnteredMeanwhile ? 1 : 2);
    step.setFault(1, slow(Exchange::HubFile)); // twice
    if (!isEnteredMeanwhile) {
        step.setFault(2, slow(Exchange::Recall));
    }
    press(step.execute());
    QTRY_COMPARE(timesAsked(*step.hub(1), Exchange::HubFile), 1);
    press(buttonOf(step.page, "backButton"));
    setDeviceRoom(step.doc, step.address(1), 2);
    if (isEnteredMeanwhile) {
        step.page.enterFrom(7);
    } else {
        QTRY_COMPARE(step.status(2), QStringLiteral("Done"));
        QCOMPARE(step.status(1), QStringLiteral("Installing..."));
    }
    if (isTakenBack) {
        setDeviceRoom(step.doc, step.address(1), 1);
    }
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    QVERIFY(!step.controller.installDone);
    // Installed once more it is.
    step.hall.clearFaults();
    press(buttonOf(step.page, "backButton"));
    step.page.enterFrom(7);
    press(step.execute());
    QTRY_VERIFY(step.controller.installDone);
}

void TestPageInstall::aFinishOnThePageBeforeDoesNotLetTheUserPassWithoutExecute()
{
    InstallHall step(base, 1);
    step.setFault(1, slow(Exchange::Recall));
    press(step.execute());
    QTRY_COMPARE(timesAsked(*step.hub(1), Exchange::HubFile), 2);
    press(buttonOf(step.page, "backButton"));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done"));
    step.page.enterFrom(7);
    QCOMPARE(step.execute()->text(), QStringLiteral("Execute"));
    QVERIFY(step.execute()->isEnabled());
}

void TestPageInstall::restoringListsTheHubs()
{
    InstallHall step(base, 2);
    setDeviceRoom(step.doc, step.address(2), 0);
    step.page.restoreFromDocument();
    QCOMPARE(columnTexts(*step.list(), "IP Address"), QStringList{step.address(1)});
}

void TestPageInstall::comingBackFromALaterStepKeepsTheStatuses()
{
    InstallHall step(base, 1);
    press(step.execute());
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    step.page.enterFrom(9);
    QCOMPARE(step.statuses(), QStringLiteral("Done"));
    QCOMPARE(step.execute()->text(), QStringLiteral("Next"));
}

void TestPageInstall::worksWithTheKeyboard()
{
    const InstallHall step(base, 1);
    QTest::keyClick(step.execute(), Qt::Key_Space);
    QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
    QTest::keyClick(step.execute(), Qt::Key_Space);
    QCOMPARE(step.controller.nexts, 1);
    QTest::keyClick(buttonOf(step.page, "backButton"), Qt::Key_Space);
    QCOMPARE(step.controller.backs, 1);
}

void TestPageInstall::theKeyboardIsBackOnTheButtonWhenItsRunIsOver_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("all done") << false;
    QTest::newRow("a hub failed") << true;
}

void TestPageInstall::theKeyboardIsBackOnTheButtonWhenItsRunIsOver()
{
    QFETCH(const bool, fails);
    InstallHall step(base, 2);
    if (fails) {
        step.setFault(2, refusal(Exchange::PresetEntry));
    }
    QVERIFY(activate(step));
    step.execute()->setFocus();
    QTest::keyClick(step.execute(), Qt::Key_Space);
    QVERIFY(!step.execute()->isEnabled());
    QCOMPARE(step.statuses(), QStringLiteral("Installing... Installing..."));
    QTRY_VERIFY(step.execute()->isEnabled());
    QCOMPARE(step.page.focusWidget(), step.execute());
    if (fails) {
        QTest::keyClick(step.page.focusWidget(), Qt::Key_Space);
        QTRY_COMPARE(step.execute()->text(), QStringLiteral("Next"));
        QCOMPARE(step.page.focusWidget(), step.execute());
    }
    QTest::keyClick(step.page.focusWidget(), Qt::Key_Space);
    QCOMPARE(step.controller.nexts, 1);
}

void TestPageInstall::theKeyboardStaysWhereTheUserTookItMeanwhile()
{
    InstallHall step(base, 1);
    QVERIFY(activate(step));
    step.execute()->setFocus();
    QTest::keyClick(step.execute(), Qt::Key_Space);
    QPushButton* back = buttonOf(step.page, "backButton");
    back->setFocus();
    QTRY_VERIFY(step.execute()->isEnabled());
    QCOMPARE(step.page.focusWidget(), back);
}

void TestPageInstall::theKeyboardIsNotTakenFromThePageBefore()
{
    InstallHall step(base, 1);
    QVERIFY(activate(step));
    step.execute()->setFocus();
    QTest::keyClick(step.execute(), Qt::Key_Space);
    QWidget* meanwhile = step.page.focusWidget();
    step.page.hide();
    QTRY_VERIFY(step.execute()->isEnabled());
    QVERIFY(step.page.focusWidget() != step.execute());
    // Nor once it is shown again.
    step.page.show();
    QVERIFY(activate(step));
    meanwhile->setFocus();
    step.page.installStatusChanged();
    QCOMPARE(step.page.focusWidget(), meanwhile);
}

TESSEL_TEST_MAIN(TestPageInstall)
#include "tst_pageinstall.moc"
