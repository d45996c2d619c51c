#include "devicequeries.h"
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "hands.h"
#include "layoutqueries.h"
#include "mainwindow.h"
#include "pagefactory.h"
#include "roomqueries.h"
#include "sessionqueries.h"
#include "steppage.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "windowevents.h"
#include "wizardpage.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>

#include <memory>

namespace {

QString resumePath()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
}

const QStringList titles{
    QStringLiteral("1. Introduction"),
    QStringLiteral("2. Room Design"),
    QStringLiteral("3. Assign Devices to the rooms"),
    QStringLiteral("4. Create room layouts"),
    QStringLiteral("5. Select the Devices for each combined rooms"),
    QStringLiteral("6. Assign the speaker locations for each room combination"),
    QStringLiteral("7. Create presets"),
    QStringLiteral("8. Install Presets"),
    QStringLiteral("9.Ready to use"),
};

// A wizard with an interface handed over, so that it starts without asking for one.
struct Wizard
{
    Wizard()
    {
        setNicIndex(doc, 7);
        for (int room = 1; room <= 2; ++room) {
            addTestDevice(doc, QStringLiteral("Hub-%1").arg(room), QStringLiteral("PX-HB"),
                          QStringLiteral("127.60.0.%1").arg(room));
        }
    }

    void draw()
    {
        enterHall(doc, {.rooms = 2, .layouts = {QStringLiteral("1/2"), QStringLiteral("1+2")}});
        setDeviceRoom(doc, QStringLiteral("127.60.0.1"), 1);
        setDeviceRoom(doc, QStringLiteral("127.60.0.2"), 2);
    }

    void open()
    {
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
    }

    void goTo(int index) const
    {
        while (stack()->currentIndex() < index) {
            window->next();
        }
    }

    QStackedWidget* stack() const
    {
        return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    }
    QString title() const
    {
        return window->findChild<QLabel*>(QStringLiteral("titleLabel"))->text();
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

} // namespace

class TestMainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void startsOnTheIntroductionWithOnePage();
    void makesEachPageWhenItIsFirstReached();
    void factoryKnowsNoOtherPages();
    void nextOnTheFinishPageStaysThere();
    void backOnTheIntroductionStaysThere();
    void goingBackKeepsLaterPages();
    void closingOnTheIntroductionOrTheFinishPageNeverAsks();
    void closingOnTheStepsBetweenAsks_data();
    void closingOnTheStepsBetweenAsks();
    void closingAsksNothingOnceEveryPresetIsInstalled();
    void closingOnAnEarlierStepAsksAlsoAfterAnInstallation_data();
    void closingOnAnEarlierStepAsksAlsoAfterAnInstallation();
    void whatWasChangedAfterAnInstallationIsAskedFor();
    void anInstallationThatWasTakenBackIsAskedFor();
    void cancelKeepsTheWindowOpen();
    void noClosesWithoutSaving();
    void quitFromAStepAsksAsClosingDoes();
    void withAnInterfaceHandedOverSavedWorkIsLoadedAtOnce();
    void workSavedOnPageFiveIsShownThereAgain();
    void anUnreadableFileIsRemovedOnlyOnYes_data();
    void anUnreadableFileIsRemovedOnlyOnYes();
    void returnKeepsAnUnreadableFile();
    void workThatCannotBeSavedIsToldAndTheWindowCloses();
    void anUncreatableFolderSavesNothingAndSaysNothing();
    void withoutAnInterfaceTheDialogOpensAndCancelQuits();
    void savedWorkWaitsForDiscoveryBehindPleaseWait();
};

void TestMainWindow::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
}

void TestMainWindow::startsOnTheIntroductionWithOnePage()
{
    Wizard wizard;
    wizard.open();
    QCOMPARE(wizard.window->windowTitle(), QStringLiteral("Divide / Combine Room Wizard"));
    QCOMPARE(wizard.window->minimumSize(), QSize(800, 600));
    QCOMPARE(wizard.window->maximumSize(), QSize(1200, 1200));
    QCOMPARE(wizard.stack()->count(), 1);
    QCOMPARE(wizard.stack()->frameStyle(), 0);
    QCOMPARE(wizard.title(), titles.at(0));
    QCOMPARE(wizard.window->findChild<QLabel*>(QStringLiteral("titleLabel"))->font().pointSizeF(),
             14.0);
}

void TestMainWindow::makesEachPageWhenItIsFirstReached()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    for (int index = 1; index < pageCount; ++index) {
        wizard.window->next();
        QCOMPARE(wizard.stack()->count(), index + 1);
        QCOMPARE(wizard.stack()->currentIndex(), index);
        QCOMPARE(wizard.title(), titles.at(index));
        QCOMPARE(qobject_cast<BasePage*>(wizard.stack()->widget(index))->pageNumber(), index + 1);
    }
}

void TestMainWindow::factoryKnowsNoOtherPages()
{
    Wizard wizard;
    wizard.open();
    QVERIFY(!makePage(-1, wizard.window.get(), &wizard.doc, nullptr));
    QVERIFY(!makePage(pageCount, wizard.window.get(), &wizard.doc, nullptr));
}

void TestMainWindow::nextOnTheFinishPageStaysThere()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(pageCount - 1);
    wizard.window->next();
    QCOMPARE(wizard.stack()->currentIndex(), pageCount - 1);
    QCOMPARE(wizard.stack()->count(), pageCount);
    QCOMPARE(wizard.title(), titles.last());
}

void TestMainWindow::backOnTheIntroductionStaysThere()
{
    Wizard wizard;
    wizard.open();
    wizard.window->back();
    QCOMPARE(wizard.stack()->currentIndex(), 0);
    QCOMPARE(wizard.title(), titles.first());
}

void TestMainWindow::goingBackKeepsLaterPages()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(4);
    const QWidget* layouts = wizard.stack()->widget(3);
    wizard.window->back();
    wizard.window->back();
    QCOMPARE(wizard.stack()->currentIndex(), 2);
    QCOMPARE(wizard.title(), titles.at(2));
    QCOMPARE(wizard.stack()->count(), 5);
    wizard.window->next();
    QCOMPARE(wizard.stack()->currentWidget(), layouts);
}

void TestMainWindow::closingOnTheIntroductionOrTheFinishPageNeverAsks()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    QVERIFY(wizard.window->close());
    wizard.window->show();
    wizard.goTo(pageCount - 1);
    QVERIFY(wizard.window->close());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::closingOnTheStepsBetweenAsks_data()
{
    QTest::addColumn<int>("index");
    for (int index = 1; index <= 7; ++index) {
        QTest::addRow("page %d", index + 1) << index;
    }
}

void TestMainWindow::closingOnTheStepsBetweenAsks()
{
    QFETCH(const int, index);
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(index);
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(wizard.window->close());
    QCOMPARE(answer.text(),
             QStringLiteral("Would you like to save the information gathered so far and continue "
                            "the configuration at the next startup?"));
    QCOMPARE(answer.buttons(),
             QStringList({QStringLiteral("Cancel"), QStringLiteral("No"), QStringLiteral("Yes")}));
    QVERIFY(QFile::exists(resumePath()));
    QCOMPARE(pageIndex(wizard.doc), index);
    QCOMPARE(windowSize(wizard.doc), wizard.window->size());
}

void TestMainWindow::closingAsksNothingOnceEveryPresetIsInstalled()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(7);
    wizard.window->setInstallDone(true);
    QVERIFY(wizard.window->close());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::closingOnAnEarlierStepAsksAlsoAfterAnInstallation_data()
{
    QTest::addColumn<int>("index");
    for (int index = 1; index < 7; ++index) {
        QTest::addRow("page %d", index + 1) << index;
    }
}

void TestMainWindow::closingOnAnEarlierStepAsksAlsoAfterAnInstallation()
{
    QFETCH(const int, index);
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(7);
    wizard.window->setInstallDone(true);
    while (wizard.stack()->currentIndex() > index) {
        wizard.window->back();
    }
    {
        const DialogAnswerer answer("Save Information?", pressing("Cancel"));
        QVERIFY(!wizard.window->close());
    }
    // There and back alone leave nothing to save.
    wizard.goTo(7);
    QVERIFY(wizard.window->close());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::whatWasChangedAfterAnInstallationIsAskedFor()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(7);
    wizard.window->setInstallDone(true);
    wizard.window->resize(1000, 800);
    setDeviceRoom(wizard.doc, QStringLiteral("127.60.0.2"), 1);
    {
        const DialogAnswerer answer("Save Information?", pressing("Cancel"));
        QVERIFY(!wizard.window->close());
    }
    setDeviceRoom(wizard.doc, QStringLiteral("127.60.0.2"), 2);
    QVERIFY(wizard.window->close());
}

void TestMainWindow::anInstallationThatWasTakenBackIsAskedFor()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    wizard.goTo(7);
    wizard.window->setInstallDone(true);
    wizard.window->setInstallDone(false);
    const DialogAnswerer answer("Save Information?", pressing("Cancel"));
    QVERIFY(!wizard.window->close());
}

void TestMainWindow::cancelKeepsTheWindowOpen()
{
    Wizard wizard;
    wizard.open();
    wizard.goTo(1);
    const DialogAnswerer answer("Save Information?", pressing("Cancel"));
    QVERIFY(!wizard.window->close());
    QVERIFY(wizard.window->isVisible());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::noClosesWithoutSaving()
{
    Wizard wizard;
    wizard.open();
    wizard.goTo(1);
    const DialogAnswerer answer("Save Information?", pressing("No"));
    QVERIFY(wizard.window->close());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::quitFromAStepAsksAsClosingDoes()
{
    Wizard wizard;
    wizard.open();
    wizard.goTo(1);
    const DialogAnswerer answer("Save Information?", pressing("No"));
    QMetaObject::invokeMethod(
        this, [&wizard] { wizard.window->quit(); }, Qt::QueuedConnection);
    QCOMPARE(QApplication::exec(), 0);
}

void TestMainWindow::withAnInterfaceHandedOverSavedWorkIsLoadedAtOnce()
{
    Wizard saved;
    saved.draw();
    saved.open();
    saved.goTo(2);
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(saved.window->close());

    Wizard resumed;
    resumed.open();
    QCOMPARE(resumed.stack()->currentIndex(), 2);
    QVERIFY(!resumed.window->findChild<QWidget*>(QStringLiteral("resumeDialog")));
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::workSavedOnPageFiveIsShownThereAgain()
{
    Wizard saved;
    saved.draw();
    saved.open();
    saved.goTo(4);
    saved.window->resize(800, 700); // as large as the screen of the tests has room for
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(saved.window->close());

    Wizard resumed;
    resumed.open();
    QCOMPARE(resumed.stack()->count(), 5);
    QCOMPARE(resumed.stack()->currentIndex(), 4);
    QCOMPARE(resumed.title(), titles.at(4));
    QCOMPARE(resumed.window->size(), QSize(800, 700));
    QCOMPARE(roomCount(resumed.doc), 2);
    QCOMPARE(layoutCount(resumed.doc), 2);
    QCOMPARE(layoutAt(resumed.doc, 2)->thumbnail.size(), QSize(64, 64));
    QCOMPARE(deviceByAddress(resumed.doc, QStringLiteral("127.60.0.2"))->roomNumber, 2);
    QVERIFY(!QFile::exists(resumePath()));
}

void TestMainWindow::anUnreadableFileIsRemovedOnlyOnYes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("kept");
    QTest::newRow("Yes") << QStringLiteral("Yes") << false;
    QTest::newRow("No leaves it for the next start") << QStringLiteral("No") << true;
}

void TestMainWindow::anUnreadableFileIsRemovedOnlyOnYes()
{
    QFETCH(const QString, button);
    QFETCH(const bool, kept);
    QVERIFY(QDir().mkpath(QFileInfo(resumePath()).path()));
    QFile file(resumePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not a saved configuration");
    file.close();

    Wizard wizard;
    const DialogAnswerer answer("Error", pressing(button));
    wizard.open();
    QCOMPARE(answer.text(), QStringLiteral("We could not resume the configuration. Do you want to "
                                           "remove the information?"));
    QCOMPARE(answer.buttons(), QStringList({QStringLiteral("No"), QStringLiteral("Yes")}));
    QCOMPARE(QFile::exists(resumePath()), kept);
    QCOMPARE(wizard.stack()->currentIndex(), 0);
}

void TestMainWindow::returnKeepsAnUnreadableFile()
{
    QVERIFY(QDir().mkpath(QFileInfo(resumePath()).path()));
    QFile file(resumePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not a saved configuration");
    file.close();

    Wizard wizard;
    const DialogAnswerer answer("Error",
                                [](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
    wizard.open();
    QVERIFY(QFile::exists(resumePath()));
}

void TestMainWindow::workThatCannotBeSavedIsToldAndTheWindowCloses()
{
    // A folder in the file's place cannot be written to, whoever runs the test.
    QVERIFY(QDir().mkpath(resumePath()));
    Wizard wizard;
    {
        const DialogAnswerer atStart("Error", pressing("No"));
        wizard.open();
    }
    wizard.goTo(1);

    const DialogAnswerer question("Save Information?", pressing("Yes"));
    const DialogAnswerer told("Error", pressing("OK"));
    QVERIFY(wizard.window->close());
    QCOMPARE(told.text(), QStringLiteral("Information could not be saved."));
}

void TestMainWindow::anUncreatableFolderSavesNothingAndSaysNothing()
{
    QFile inTheWay(QDir::homePath() + QStringLiteral("/AppData"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    Wizard wizard;
    wizard.open();
    wizard.goTo(1);
    const DialogAnswerer answer("Save Information?", pressing("Yes"));
    QVERIFY(wizard.window->close());
    QVERIFY(inTheWay.remove());
}

void TestMainWindow::withoutAnInterfaceTheDialogOpensAndCancelQuits()
{
    TesselDoc doc(nullptr);
    MainWindow window(nullptr, &doc);
    window.show();
    QString title;
    const DialogAnswerer answer("networkDialog", [&title](QWidget* dialog) {
        title = dialog->windowTitle();
        Hands::clickButton(dialog, "Cancel");
    });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(title, QStringLiteral("Select Network Interface Card"));
}

void TestMainWindow::savedWorkWaitsForDiscoveryBehindPleaseWait()
{
    Wizard wizard;
    wizard.draw();
    wizard.open();
    setPageIndex(wizard.doc, 3);
    QVERIFY(QDir().mkpath(QFileInfo(resumePath()).path()));
    QVERIFY(wizard.doc.saveResume(resumePath()));

    QCoreApplication::postEvent(wizard.window.get(), new StartDiscoveryEvent);
    QTRY_VERIFY(wizard.window->findChild<QWidget*>(QStringLiteral("resumeDialog")));
    const auto* dialog = wizard.window->findChild<QWidget*>(QStringLiteral("resumeDialog"));
    QVERIFY(dialog->isVisible());
    QVERIFY2(dialog->isEnabled(), "its text would be grey");
    QVERIFY(!wizard.window->isEnabled());
    QCOMPARE(wizard.stack()->currentIndex(), 0);

    QTRY_VERIFY_WITH_TIMEOUT(wizard.window->isEnabled(), 8000);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(wizard.stack()->currentIndex(), 3);
    QVERIFY(!QFile::exists(resumePath()));
}

TESSEL_TEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
