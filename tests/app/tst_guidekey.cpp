#include "alldialogs.h"
#include "filledwizard.h"
#include "mainwindow.h"
#include "openedpages.h"
#include "quietline.h"
#include "sessionqueries.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

namespace {

/// The guide of this program, which has a folder to itself.
QString guideFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/guide");
}

/// Where the system has the guide of an installed program.
QString installedFolder()
{
#ifdef Q_OS_WIN
    return guideFolder();
#else
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/tessel/guide"));
#endif
}

QString pageOf(int step)
{
    return guideFolder() + QStringLiteral("/step-%1.html").arg(step);
}

/// Presses a key where the keyboard is.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget* receiver = QApplication::activePopupWidget();
    if (!receiver) {
        receiver = QApplication::focusWidget();
    }
    QVERIFY(receiver != nullptr);
    QTest::keyClick(receiver, key, modifiers);
}

QString quietText(const FilledWizard& wizard)
{
    const auto* line = wizard.page().findChild<QuietLine*>();
    return line && line->isVisible() ? line->text() : QString();
}

} // namespace

/// F1 in the whole window.
class TestGuideKey : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyStepOpensItsPage_data();
    void everyStepOpensItsPage();
    void everyDialogOpensThePageOfTheStep_data();
    void everyDialogOpensThePageOfTheStep();
    void messageBoxesOpenItToo_data();
    void messageBoxesOpenItToo();
    void itIsOpenedWhileSavedDevicesAreAwaited();
    void itIsOpenedFromAMenu();
    void aFieldKeepsItsText();
    void aKeyThatIsHeldOpensOnce();
    void noOtherKeyOpensIt();
    void withoutAGuideItsPlaceIsTold_data();
    void withoutAGuideItsPlaceIsTold();
    void theLineGoesOnToSayWhatIsMissing();
};

void TestGuideKey::init()
{
    TestCase::init();
    QVERIFY(QDir().mkpath(guideFolder()));
    QFile page(guideFolder() + QStringLiteral("/index.html"));
    QVERIFY(page.open(QIODevice::WriteOnly));
}

void TestGuideKey::cleanup()
{
    QDir(guideFolder()).removeRecursively();
}

void TestGuideKey::everyStepOpensItsPage_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= pageCount; ++step) {
        QTest::newRow(qPrintable(QString::number(step))) << step;
    }
}

void TestGuideKey::everyStepOpensItsPage()
{
    QFETCH(const int, step);
    const FilledWizard wizard(step);
    const OpenedPages opened;
    press(Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(step)});
    QCOMPARE(wizard.stack()->currentIndex(), step - 1);
}

void TestGuideKey::everyDialogOpensThePageOfTheStep_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : dialogNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestGuideKey::everyDialogOpensThePageOfTheStep()
{
    QFETCH(const QString, name);
    const FilledWizard wizard(8);
    const OpenedPages opened;
    QDialog* dialog = makeDialog(name, wizard.window.get());
    dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(8)});
    QVERIFY(dialog->isVisible());
}

void TestGuideKey::messageBoxesOpenItToo_data()
{
    QTest::addColumn<bool>("belongsToTheWindow");
    QTest::newRow("over the window") << true;
    QTest::newRow("without a window") << false;
}

void TestGuideKey::messageBoxesOpenItToo()
{
    QFETCH(const bool, belongsToTheWindow);
    const FilledWizard wizard(4);
    const OpenedPages opened;
    QMessageBox box(QMessageBox::Question, QStringLiteral("Question"), QStringLiteral("Go on?"),
                    QMessageBox::Yes | QMessageBox::No,
                    belongsToTheWindow ? wizard.window.get() : nullptr);
    box.open();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    press(Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(4)});
    QVERIFY(box.isVisible());
}

void TestGuideKey::itIsOpenedWhileSavedDevicesAreAwaited()
{
    const FilledWizard wizard(1);
    const OpenedPages opened;
    QDialog* dialog = makeDialog(QStringLiteral("resume"), wizard.window.get());
    dialog->show();
    wizard.window->setEnabled(false);
    dialog->setEnabled(true);
    QTest::keyClick(dialog, Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(1)});
}

void TestGuideKey::itIsOpenedFromAMenu()
{
    const FilledWizard wizard(4);
    const OpenedPages opened;
    auto* picker = wizard.page().findChild<QWidget*>(QStringLiteral("tessel"));
    picker->setFocus();
    press(Qt::Key_Space);
    QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    press(Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(4)});
    QApplication::activePopupWidget()->close();
}

void TestGuideKey::aFieldKeepsItsText()
{
    const FilledWizard wizard(7);
    const OpenedPages opened;
    auto* field = wizard.shown<QLineEdit>().constFirst();
    field->setFocus();
    const QString text = field->text();
    press(Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList{pageOf(7)});
    QCOMPARE(field->text(), text);
    QVERIFY(field->hasFocus());
}

void TestGuideKey::aKeyThatIsHeldOpensOnce()
{
    const FilledWizard wizard(2);
    const OpenedPages opened;
    for (const bool repeated : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), repeated);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QCOMPARE(opened.paths(), QStringList{pageOf(2)});
}

void TestGuideKey::noOtherKeyOpensIt()
{
    const FilledWizard wizard(2);
    const OpenedPages opened;
    press(Qt::Key_F1, Qt::ShiftModifier);
    press(Qt::Key_F1, Qt::ControlModifier);
    press(Qt::Key_F2);
    QCOMPARE(opened.paths(), QStringList());
}

void TestGuideKey::withoutAGuideItsPlaceIsTold_data()
{
    everyStepOpensItsPage_data();
}

void TestGuideKey::withoutAGuideItsPlaceIsTold()
{
    QFETCH(const int, step);
    cleanup();
    const FilledWizard wizard(step);
    const OpenedPages opened;
    press(Qt::Key_F1);
    QCOMPARE(opened.paths(), QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(quietText(wizard), QStringLiteral("The guide is not installed; its place is %1.")
                                    .arg(QDir::toNativeSeparators(installedFolder())));
    for (const QPushButton* button : wizard.buttons()) {
        QVERIFY(!button->visibleRegion().isEmpty());
    }
}

void TestGuideKey::theLineGoesOnToSayWhatIsMissing()
{
    cleanup();
    TesselDoc doc(nullptr);
    setNicIndex(doc, 7); // handed over, so that nothing is looked for
    MainWindow window(nullptr, &doc);
    window.next();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto* line = window.findChild<QuietLine*>();
    QCOMPARE(line->text(), QStringLiteral("Draw two rooms or more."));
    window.findChild<QWidget*>(QStringLiteral("roomEditor"))->setFocus();
    press(Qt::Key_F1);
    QVERIFY(line->text().startsWith(QStringLiteral("The guide is not installed")));
    press(Qt::Key_Space);
    QVERIFY(line->text().startsWith(QStringLiteral("Draw one room more")));
}

TESSEL_TEST_MAIN(TestGuideKey)
#include "tst_guidekey.moc"
