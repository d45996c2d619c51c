#include "documentfixtures.h"
#include "mainwindow.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

namespace {

/// The wizard with a hall that every step is satisfied with.
struct Wizard
{
    Wizard()
    {
        setNicIndex(doc, 7); // handed over, so that nothing is looked for
        enterHubs(
            doc,
            {{QStringLiteral("Hub 1"), QStringLiteral("PX-HB"), QStringLiteral("127.72.0.1"), 1},
             {QStringLiteral("Hub 2"), QStringLiteral("PX-HB"), QStringLiteral("127.72.0.2"), 2}});
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
        QApplication::setActiveWindow(window.get());
    }

    int page() const { return stack()->currentIndex() + 1; }

    QStackedWidget* stack() const
    {
        return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    }

    QPushButton* button(const char* name) const
    {
        return stack()->currentWidget()->findChild<QPushButton*>(QLatin1String(name));
    }

    void press(Qt::Key key) const { QTest::keyClick(window.get(), key, Qt::AltModifier); }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

} // namespace

class TestPageKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void altAndArrowsTurnThePagesUpToTheInstallation();
    void noKeyExecutes();
    void aKeyThatIsHeldTurnsOnePage();
    void aDisabledNextStaysWhereItIs();
    void theButtonsNameTheirKeys();
    void noPageThatGoesOnBeginsOnClose_data();
    void noPageThatGoesOnBeginsOnClose();
};

void TestPageKeys::altAndArrowsTurnThePagesUpToTheInstallation()
{
    const Wizard wizard;
    for (int page = 2; page <= 8; ++page) {
        wizard.press(Qt::Key_Right);
        QCOMPARE(wizard.page(), page);
    }
    for (int page = 7; page >= 2; --page) {
        wizard.press(Qt::Key_Left);
        QCOMPARE(wizard.page(), page);
    }
    wizard.press(Qt::Key_Left);
    QCOMPARE(wizard.page(), 2); // from there the wizard closes, it does not go back
}

void TestPageKeys::noKeyExecutes()
{
    const Wizard wizard;
    for (int page = 2; page <= 9; ++page) {
        wizard.press(Qt::Key_Right);
    }
    QCOMPARE(wizard.page(), 8);
    QVERIFY(wizard.button("executeButton")->isEnabled());
    QCOMPARE(wizard.button("executeButton")->text(), QStringLiteral("Execute"));
}

void TestPageKeys::aKeyThatIsHeldTurnsOnePage()
{
    const Wizard wizard;
    for (const bool repeated : {false, true, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Right, Qt::AltModifier, QString(), repeated);
        QCoreApplication::sendEvent(wizard.window.get(), &event);
    }
    QCOMPARE(wizard.page(), 2);
}

void TestPageKeys::aDisabledNextStaysWhereItIs()
{
    TesselDoc doc(nullptr);
    setNicIndex(doc, 7);
    MainWindow window(nullptr, &doc);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto* stack = window.findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
    }
    QCOMPARE(stack->currentIndex(), 1);
}

void TestPageKeys::theButtonsNameTheirKeys()
{
    const Wizard wizard;
    QCOMPARE(wizard.button("nextButton")->toolTip(), QStringLiteral("Alt+Right"));
    wizard.press(Qt::Key_Right);
    wizard.press(Qt::Key_Right);
    QCOMPARE(wizard.button("nextButton")->toolTip(), QStringLiteral("Alt+Right"));
    QCOMPARE(wizard.button("backButton")->toolTip(), QStringLiteral("Alt+Left"));
}

void TestPageKeys::noPageThatGoesOnBeginsOnClose_data()
{
    QTest::addColumn<bool>("isByMouse");
    QTest::newRow("by key") << false;
    QTest::newRow("by mouse") << true;
}

void TestPageKeys::noPageThatGoesOnBeginsOnClose()
{
    QFETCH(const bool, isByMouse);
    const Wizard wizard;
    QVERIFY(QTest::qWaitForWindowActive(wizard.window.get()));
    QCOMPARE(QApplication::focusWidget(), wizard.button("nextButton"));
    while (wizard.page() < 8) {
        const int before = wizard.page();
        if (isByMouse) {
            QTest::mouseClick(wizard.button("nextButton"), Qt::LeftButton);
        } else {
            wizard.press(Qt::Key_Right);
        }
        QCOMPARE(wizard.page(), before + 1);
        const QWidget* focused = QApplication::focusWidget();
        QVERIFY(focused != nullptr && wizard.stack()->currentWidget()->isAncestorOf(focused));
        QVERIFY2(focused != wizard.button("closeButton"), qPrintable(QString::number(before + 1)));
    }
}

TESSEL_TEST_MAIN(TestPageKeys)
#include "tst_pagekeys.moc"
