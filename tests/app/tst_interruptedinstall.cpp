#include "dialoganswerer.h"
#include "hands.h"
#include "installhall.h"
#include "installwatch.h"
#include "mainwindow.h"
#include "pagefixtures.h"
#include "sessionqueries.h"
#include "tablefixtures.h"
#include "testcase.h"
#include "wizardhands.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

#include <memory>

/// The real window, left or closed while it installs.
class TestInterruptedInstall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void backDuringAnyRequestAndForthAgainLetsTheInstallationGoOn_data();
    void backDuringAnyRequestAndForthAgainLetsTheInstallationGoOn();
    void closedDuringAnyRequestNothingBreaksAndTheNextWindowInstalls_data();
    void closedDuringAnyRequestNothingBreaksAndTheNextWindowInstalls();
    void aHubThatPreparesForEverKeepsNobodyFromLeavingOrTryingAgain();
    void theInstallationGoesOnBehindTheQuestionAndAfterCancel();
    void aHubMayAskForItsPasswordOverTheQuestion_data();
    void aHubMayAskForItsPasswordOverTheQuestion();
    void workSavedDuringAnInstallationIsInstalledAtTheNextStart();
    void afterDoneTheWayBackAndForthAloneAsksNothing_data();
    void afterDoneTheWayBackAndForthAloneAsksNothing();
    void whatIsEnteredAfterDoneIsAskedFor();
    void whatIsEnteredDuringAnInstallationIsAskedFor();
};

namespace {

const QString base = QStringLiteral("127.71.1.1");
constexpr int slowMs = 500;
constexpr int installIndex = 7;

HallDescription describe(Exchange exchange)
{
    HallDescription description = quickHall(base, 2, 1);
    if (exchange == Exchange::SetPassword) {
        description.hubs.first().password.reset();
    }
    return description;
}

std::unique_ptr<MainWindow> openWindow(IDocAccessor& doc)
{
    setNicIndex(doc, 1);
    auto window = std::make_unique<MainWindow>(nullptr, &doc);
    window->show();
    return window;
}

/// A hall, and the window on the installation step in front of it.
struct Wizard
{
    explicit Wizard(Exchange exchange)
        : Wizard(describe(exchange))
    {
    }

    explicit Wizard(const HallDescription& description)
        : step(description)
    {
        step.page.hide();
        open();
    }

    void open()
    {
        window = openWindow(step.doc);
        for (int index = 0; index < installIndex; ++index) {
            window->next();
        }
    }

    QPushButton* button(const char* name) const { return buttonOf(page(), name); }
    QString statuses() const
    {
        return columnTexts(*tableOf(page(), "hubList"), "Status").join(u' ');
    }
    const QWidget& page() const { return *stack()->widget(installIndex); }
    QStackedWidget* stack() const
    {
        return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    }

    /// "Back" as far as the page of this index, and "Next" to the installation.
    void goBackTo(int index) const
    {
        while (stack()->currentIndex() > index) {
            QVERIFY(hands().back());
        }
    }
    void goForth() const
    {
        while (stack()->currentIndex() < installIndex) {
            QVERIFY(hands().next());
        }
    }
    /// Step 7 with the cursor in the first name.
    void namePreset(const QString& name) const
    {
        goBackTo(installIndex - 1);
        QCOMPARE(hands().namePreset(1, name), name);
    }
    WizardHands hands() const { return WizardHands(window.get()); }
    /// Closes the window; true when it asks, which is answered with "Cancel".
    bool asksOnClosing() const
    {
        DialogAnswerer question;
        question.onDialog("Save Information?", pressing("Cancel"));
        const bool isClosed = window->close();
        return question.answered("Save Information?") == 1 && !isClosed;
    }

    /// "Execute", until the first hub is at this request.
    void installUntil(Exchange exchange) const
    {
        QSignalSpy handled(&step.hall, SIGNAL(requestHandled(QString, QString)));
        press(button("executeButton"));
        while (timesAsked(*step.hub(1), exchange) == 0 && handled.wait()) {
        }
        QCOMPARE(timesAsked(*step.hub(1), exchange), 1);
    }

    void installWhole() const
    {
        QCOMPARE(button("executeButton")->text(), QStringLiteral("Execute"));
        press(button("executeButton"));
        QVERIFY(waitUntilOver(page()));
        QCOMPARE(statuses(), QStringLiteral("Done Done"));
        QCOMPARE(button("executeButton")->text(), QStringLiteral("Next"));
        QCOMPARE(step.hub(1)->presets().size(), 2);
        QCOMPARE(step.hub(1)->presets().value(2).files.size(), 2);
        QCOMPARE(step.hub(1)->recalledPreset(), 1);
    }

    InstallHall step;
    std::unique_ptr<MainWindow> window;
};

void addRequestRows()
{
    QTest::addColumn<Exchange>("exchange");
    for (int step = 0; step <= lastInstallationStep; ++step) {
        const auto exchange = static_cast<Exchange>(step);
        QTest::newRow(qPrintable(exchangeName(exchange))) << exchange;
    }
}

QString resumePath()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
}

} // namespace

void TestInterruptedInstall::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
}

void TestInterruptedInstall::backDuringAnyRequestAndForthAgainLetsTheInstallationGoOn_data()
{
    addRequestRows();
}

void TestInterruptedInstall::backDuringAnyRequestAndForthAgainLetsTheInstallationGoOn()
{
    QFETCH(const Exchange, exchange);
    Wizard wizard(exchange);
    wizard.step.setFault(1, {.exchange = exchange, .kind = FaultKind::Slow, .number = slowMs});
    wizard.installUntil(exchange);
    press(wizard.button("backButton"));
    QVERIFY(!wizard.page().isVisible());
    wizard.window->next();
    QVERIFY(wizard.statuses().startsWith(QLatin1String("Installing...")));
    QVERIFY2(wizard.button("executeButton")->isEnabled(),
             "what still runs keeps nobody from trying");
    QVERIFY(waitUntilOver(wizard.page()));
    QVERIFY(wizard.statuses().startsWith(QLatin1String("Done")));
    QCOMPARE(wizard.step.hub(1)->presets().size(), 2);
    QCOMPARE(wizard.step.hub(1)->logInCount(), 1);
    QVERIFY(wizard.button("executeButton")->isEnabled());
}

void TestInterruptedInstall::closedDuringAnyRequestNothingBreaksAndTheNextWindowInstalls_data()
{
    addRequestRows();
}

void TestInterruptedInstall::closedDuringAnyRequestNothingBreaksAndTheNextWindowInstalls()
{
    QFETCH(const Exchange, exchange);
    Wizard wizard(exchange);
    wizard.step.setFault(1, {.exchange = exchange, .kind = FaultKind::Silence});
    wizard.installUntil(exchange);
    waitUntilQuiet(wizard.step);
    {
        const DialogAnswerer answer("Save Information?", pressing("No"));
        QVERIFY(wizard.window->close());
    }
    wizard.window.reset();
    waitUntilQuiet(wizard.step);
    QCOMPARE(wizard.step.hub(1)->exchangeNames().last(), exchangeName(exchange));
    QVERIFY(!QApplication::activeModalWidget());

    wizard.step.hall.clearFaults();
    wizard.open();
    wizard.installWhole();
}

void TestInterruptedInstall::aHubThatPreparesForEverKeepsNobodyFromLeavingOrTryingAgain()
{
    HallDescription description = quickHall(base, 2, 1);
    description.hubs.first().exportPolls = HubDescription::maxExportPolls;
    Wizard wizard(description);
    wizard.installUntil(Exchange::ReadExport);
    QTRY_COMPARE(wizard.statuses(), QStringLiteral("Installing... Done"));

    press(wizard.button("backButton"));
    QVERIFY(!wizard.page().isVisible());
    wizard.window->next();
    press(wizard.button("executeButton"));
    QTRY_COMPARE(timesAsked(*wizard.step.hub(1), Exchange::LogIn), 2);
    QTRY_COMPARE(wizard.statuses(), QStringLiteral("Installing... Done"));

    const DialogAnswerer answer("Save Information?", pressing("No"));
    QVERIFY(wizard.window->close());
    const qsizetype polls = timesAsked(*wizard.step.hub(1), Exchange::ReadExport);
    wizard.window.reset();
    // The next window installs into the same hubs at once; the first one's wait is gone.
    wizard.open();
    press(wizard.button("executeButton"));
    QTRY_VERIFY(timesAsked(*wizard.step.hub(1), Exchange::ReadExport) > polls);
    QTRY_COMPARE(wizard.statuses(), QStringLiteral("Installing... Done"));
    QCOMPARE(timesAsked(*wizard.step.hub(1), Exchange::LogIn), 3);
}

void TestInterruptedInstall::theInstallationGoesOnBehindTheQuestionAndAfterCancel()
{
    Wizard wizard(Exchange::StartExport);
    wizard.step.setFault(
        1, {.exchange = Exchange::StartExport, .kind = FaultKind::Slow, .number = slowMs});
    wizard.step.setFault(1,
                         {.exchange = Exchange::Recall, .kind = FaultKind::Slow, .number = slowMs});
    wizard.installUntil(Exchange::StartExport);
    int heldBehind = 0;
    const DialogAnswerer answer("Save Information?", [&](QWidget* question) {
        QTRY_COMPARE(timesAsked(*wizard.step.hub(1), Exchange::Recall), 1);
        heldBehind = int(wizard.step.hub(1)->presets().size());
        Hands::clickButton(question, "Cancel");
    });
    QVERIFY(!wizard.window->close());
    QCOMPARE(heldBehind, 2);
    QVERIFY(wizard.window->isVisible());
    QVERIFY(waitUntilOver(wizard.page()));
    QCOMPARE(wizard.statuses(), QStringLiteral("Done Done"));
    QVERIFY2(wizard.window->close(), "with everything installed nothing is asked");
}

void TestInterruptedInstall::aHubMayAskForItsPasswordOverTheQuestion_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("Yes") << QStringLiteral("Yes") << true;
    QTest::newRow("No") << QStringLiteral("No") << true;
    QTest::newRow("Cancel") << QStringLiteral("Cancel") << false;
}

void TestInterruptedInstall::aHubMayAskForItsPasswordOverTheQuestion()
{
    QFETCH(const QString, button);
    QFETCH(const bool, isClosed);
    Wizard wizard(Exchange::Token);
    // Closed before the first hub could say a word, so that its question comes over the one of the
    // window.
    press(wizard.button("executeButton"));
    const DialogAnswerer answer("Save Information?", [&](QWidget* question) {
        QTRY_COMPARE(wizard.step.answers.prompts().size(), 2);
        QTRY_VERIFY(QApplication::activeModalWidget() == question);
        Hands::clickButton(question, button);
    });
    QCOMPARE(wizard.window->close(), isClosed);
    QVERIFY(waitUntilOver(wizard.page()));
    QCOMPARE(wizard.statuses(), QStringLiteral("Done Done"));
}

void TestInterruptedInstall::workSavedDuringAnInstallationIsInstalledAtTheNextStart()
{
    Wizard wizard(Exchange::HubFile);
    wizard.step.setFault(1, {.exchange = Exchange::HubFile, .kind = FaultKind::Silence});
    wizard.installUntil(Exchange::HubFile);
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(wizard.window->close());
    QVERIFY(QFile::exists(resumePath()));
    wizard.window.reset();
    wizard.step.hall.clearFaults();

    TesselDoc doc(nullptr);
    const HallDescription hall = wizard.step.hall.description();
    for (const HubDescription& hub : hall.hubs) {
        addTestDevice(doc, hub.label, hub.model, hub.address);
    }
    for (const DeviceDescription& device : hall.peripherals) {
        addTestDevice(doc, device.label, device.model, device.address);
    }
    wizard.window = openWindow(doc);
    QCOMPARE(wizard.statuses(), QStringLiteral(" "));
    wizard.installWhole();
    wizard.window.reset();
}

void TestInterruptedInstall::afterDoneTheWayBackAndForthAloneAsksNothing_data()
{
    QTest::addColumn<int>("index");
    for (int index = 1; index < installIndex; ++index) {
        QTest::addRow("from step %d", index + 1) << index;
    }
}

void TestInterruptedInstall::afterDoneTheWayBackAndForthAloneAsksNothing()
{
    QFETCH(const int, index);
    const Wizard wizard(Exchange::Recall);
    // What the pages make of it is what is installed.
    wizard.goBackTo(1);
    wizard.goForth();
    wizard.installWhole();
    wizard.goBackTo(index);
    QVERIFY(wizard.asksOnClosing());
    wizard.goForth();
    QCOMPARE(wizard.button("executeButton")->text(), QStringLiteral("Execute"));
    QVERIFY(!wizard.asksOnClosing());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestInterruptedInstall::whatIsEnteredAfterDoneIsAskedFor()
{
    const Wizard wizard(Exchange::Recall);
    wizard.goBackTo(1);
    wizard.goForth();
    wizard.installWhole();
    wizard.namePreset(QStringLiteral("Other"));
    wizard.goForth();
    QVERIFY(wizard.asksOnClosing());
    wizard.installWhole();
    QVERIFY(!wizard.asksOnClosing());
}

void TestInterruptedInstall::whatIsEnteredDuringAnInstallationIsAskedFor()
{
    const Wizard wizard(Exchange::Recall);
    wizard.goBackTo(1);
    wizard.goForth();
    for (const int hub : {1, 2}) {
        wizard.step.setFault(
            hub, {.exchange = Exchange::Recall, .kind = FaultKind::Slow, .number = 3 * slowMs});
    }
    wizard.installUntil(Exchange::Recall);
    wizard.namePreset(QStringLiteral("Other"));
    wizard.goForth();
    QCOMPARE(wizard.statuses(), QStringLiteral("Installing... Installing..."));
    QVERIFY(waitUntilOver(wizard.page()));
    QCOMPARE(wizard.statuses(), QStringLiteral("Done Done"));
    QCOMPARE(wizard.button("executeButton")->text(), QStringLiteral("Next"));
    QVERIFY(wizard.asksOnClosing());
}

TESSEL_TEST_MAIN(TestInterruptedInstall)
#include "tst_interruptedinstall.moc"
