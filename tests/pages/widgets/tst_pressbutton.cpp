#include "identifybutton.h"
#include "removebutton.h"
#include "svgbutton.h"
#include "tesselbutton.h"
#include "testcase.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QSignalSpy>
#include <QTest>

namespace {

void addKeys()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

} // namespace

class TestPressButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aReleaseOutsideCountsAsWell();
    void everyMouseButtonPresses();
    void aRightClickOpensNoMenuBelow();
    void keysPressAndRelease_data() { addKeys(); }
    void keysPressAndRelease();
    void aHeldKeyPressesOnce_data() { addKeys(); }
    void aHeldKeyPressesOnce();
    void losingTheFocusLetsGoWithoutAClick();
    void otherKeysGoOn();
    void aDisabledButtonDoesNothing();
    void tabReachesItAndShowsTheRing();
    void theMouseShowsNoRing();
    void theFirstKeyAfterAClickShowsTheRing_data();
    void theFirstKeyAfterAClickShowsTheRing();
    void theRingShowsForAFocusBroughtByKeyOnly_data();
    void theRingShowsForAFocusBroughtByKeyOnly();
    void aWindowThatComesBackShowsTheRingThatItShowed_data();
    void aWindowThatComesBackShowsTheRingThatItShowed();
    void assistiveTechnologySeesAButton_data();
    void assistiveTechnologySeesAButton();
    void assistiveTechnologyPresses();
    void assistiveTechnologySeesWhetherALinkBoxIsChecked();
    void aDisabledButtonOffersNoPress();
    void theRemoveButtonSaysWhichDeviceItMeans();
};

namespace {

const QString address = QStringLiteral("192.168.0.7");
const QColor face(0xCC, 0xCC, 0xCC);

QString identifyIcon()
{
    return QStringLiteral(":/image/icon_identify_bk.svg");
}

void show(QWidget& widget)
{
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
}

QImage picture(QWidget& widget)
{
    return widget.grab().toImage();
}

bool hasColorOtherThan(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != color) {
                return true;
            }
        }
    }
    return false;
}

QAccessibleActionInterface* actionsOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->actionInterface();
}

QString press()
{
    return QAccessibleActionInterface::pressAction();
}

} // namespace

void TestPressButton::aReleaseOutsideCountsAsWell()
{
    TesselButton button;
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {100, 100});
    QCOMPARE(clicked.size(), 1);
    QVERIFY(!button.isPressed());
}

void TestPressButton::everyMouseButtonPresses()
{
    TesselButton button;
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::mouseClick(&button, Qt::RightButton);
    QTest::mouseClick(&button, Qt::MiddleButton);
    QCOMPARE(clicked.size(), 2);
}

void TestPressButton::aRightClickOpensNoMenuBelow()
{
    QWidget window;
    window.setContextMenuPolicy(Qt::CustomContextMenu);
    window.resize(100, 100);
    TesselButton button(&window);
    QSignalSpy menus(&window, SIGNAL(customContextMenuRequested(QPoint)));
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    show(window);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, {50, 50});
    QCOMPARE(menus.size(), 1);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, {5, 5});
    QCOMPARE(menus.size(), 1);
    QCOMPARE(clicked.size(), 1);
}

void TestPressButton::keysPressAndRelease()
{
    QFETCH(const Qt::Key, key);
    IdentifyButton button(address);
    QSignalSpy clicked(&button, SIGNAL(clicked(QString)));
    QTest::keyPress(&button, key);
    QVERIFY(button.isPressed());
    QCOMPARE(clicked.size(), 0);
    QTest::keyRelease(&button, key);
    QVERIFY(!button.isPressed());
    QCOMPARE(clicked.size(), 1);
}

void TestPressButton::aHeldKeyPressesOnce()
{
    QFETCH(const Qt::Key, key);
    TesselButton button;
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::keyPress(&button, key);
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, key, Qt::NoModifier, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(&button, &repeated);
    }
    QCOMPARE(clicked.size(), 0);
    QTest::keyRelease(&button, key);
    QCOMPARE(clicked.size(), 1);
}

void TestPressButton::losingTheFocusLetsGoWithoutAClick()
{
    TesselButton button;
    show(button);
    button.setFocus();
    QSignalSpy clicked(&button, SIGNAL(clicked(bool)));
    QTest::keyPress(&button, Qt::Key_Space);
    button.clearFocus();
    QVERIFY(!button.isPressed());
    QTest::keyRelease(&button, Qt::Key_Space);
    QCOMPARE(clicked.size(), 0);
}

void TestPressButton::otherKeysGoOn()
{
    TesselButton button;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!button.isPressed());
}

void TestPressButton::aDisabledButtonDoesNothing()
{
    QWidget window;
    window.resize(100, 100);
    TesselButton button(&window);
    button.setEnabled(false);
    show(window);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {5, 5});
    QVERIFY(!button.isChecked());
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QVERIFY(!button.hasFocus());
}

void TestPressButton::tabReachesItAndShowsTheRing()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* first = new TesselButton(&window);
    auto* second = new TesselButton(&window);
    layout->addWidget(first);
    layout->addWidget(second);
    show(window);
    first->setFocus(Qt::OtherFocusReason);
    QVERIFY(!hasColorOtherThan(picture(*second), face));
    QTest::keyClick(first, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), second);
    QCOMPARE(picture(*second).pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(picture(*second).pixelColor(1, 1), QColor(Qt::white));
    QVERIFY(!hasColorOtherThan(picture(*first), face));
}

void TestPressButton::theMouseShowsNoRing()
{
    TesselButton button;
    show(button);
    button.clearFocus();
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, {5, 5});
    QVERIFY(button.hasFocus());
    QCOMPARE(picture(button).pixelColor(0, 0), face);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::black));
}

void TestPressButton::theFirstKeyAfterAClickShowsTheRing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Shift, on the way to Shift+Tab") << Qt::Key_Shift;
    QTest::newRow("an arrow that leads nowhere") << Qt::Key_Down;
    QTest::newRow("a letter") << Qt::Key_X;
}

void TestPressButton::theFirstKeyAfterAClickShowsTheRing()
{
    QFETCH(const Qt::Key, key);
    TesselButton button;
    show(button);
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, {5, 5});
    QCOMPARE(picture(button).pixelColor(0, 0), face);
    QTest::keyClick(&button, key);
    QCOMPARE(picture(button).pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(picture(button).pixelColor(1, 1), QColor(Qt::white));
}

void TestPressButton::theRingShowsForAFocusBroughtByKeyOnly_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("shown");
    QTest::newRow("Tab") << Qt::TabFocusReason << true;
    QTest::newRow("Tab backwards") << Qt::BacktabFocusReason << true;
    QTest::newRow("a shortcut") << Qt::ShortcutFocusReason << true;
    QTest::newRow("the mouse") << Qt::MouseFocusReason << false;
    QTest::newRow("the program") << Qt::OtherFocusReason << false;
    QTest::newRow("a new window") << Qt::ActiveWindowFocusReason << false;
}

void TestPressButton::theRingShowsForAFocusBroughtByKeyOnly()
{
    QFETCH(const Qt::FocusReason, reason);
    QFETCH(const bool, shown);
    TesselButton button;
    show(button);
    button.clearFocus();
    button.setFocus(reason);
    QVERIFY(button.hasFocus());
    QCOMPARE(hasColorOtherThan(picture(button), face), shown);
    // What brought the focus once says nothing of the next time.
    button.clearFocus();
    button.setFocus(Qt::OtherFocusReason);
    QVERIFY(!hasColorOtherThan(picture(button), face));
}

void TestPressButton::aWindowThatComesBackShowsTheRingThatItShowed_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("shown");
    QTest::newRow("after Tab") << Qt::TabFocusReason << true;
    QTest::newRow("after the mouse") << Qt::MouseFocusReason << false;
}

void TestPressButton::aWindowThatComesBackShowsTheRingThatItShowed()
{
    QFETCH(const Qt::FocusReason, reason);
    QFETCH(const bool, shown);
    TesselButton button;
    show(button);
    button.clearFocus();
    button.setFocus(reason);
    QWidget other;
    show(other);
    QVERIFY(!hasColorOtherThan(picture(button), face));
    show(button);
    QVERIFY(button.hasFocus());
    QCOMPARE(hasColorOtherThan(picture(button), face), shown);
}

void TestPressButton::assistiveTechnologySeesAButton_data()
{
    QTest::addColumn<std::shared_ptr<PressButton>>("button");
    QTest::addColumn<QString>("name");
    QTest::newRow("identify") << std::shared_ptr<PressButton>(new IdentifyButton(address))
                              << QStringLiteral("Identify 192.168.0.7");
    QTest::newRow("icon") << std::shared_ptr<PressButton>(new SvgButton(identifyIcon()))
                          << QString();
    QTest::newRow("remove") << std::shared_ptr<PressButton>(new RemoveButton)
                            << QStringLiteral("Remove");
}

void TestPressButton::assistiveTechnologySeesAButton()
{
    QFETCH(const std::shared_ptr<PressButton>, button);
    QFETCH(const QString, name);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button.get());
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), name);
    QVERIFY(actionsOf(button.get())->actionNames().contains(press()));
    QCOMPARE(actionsOf(button.get())->keyBindingsForAction(press()),
             QStringList({QStringLiteral("Space")}));
}

void TestPressButton::assistiveTechnologyPresses()
{
    IdentifyButton button(address);
    QSignalSpy clicked(&button, SIGNAL(clicked(QString)));
    actionsOf(&button)->doAction(press());
    QCOMPARE(clicked.size(), 1);
    QVERIFY(!button.isPressed());
}

void TestPressButton::assistiveTechnologySeesWhetherALinkBoxIsChecked()
{
    TesselButton button;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QVERIFY(interface->state().checkable);
    QVERIFY(!interface->state().checked);
    actionsOf(&button)->doAction(press());
    QVERIFY(interface->state().checked);
    const QString& toggle = QAccessibleActionInterface::toggleAction();
    QVERIFY(actionsOf(&button)->actionNames().contains(toggle));
    actionsOf(&button)->doAction(toggle);
    QVERIFY(!interface->state().checked);
    IdentifyButton other(address);
    QVERIFY(!QAccessible::queryAccessibleInterface(&other)->state().checkable);
}

void TestPressButton::aDisabledButtonOffersNoPress()
{
    TesselButton button;
    button.setEnabled(false);
    QVERIFY(!actionsOf(&button)->actionNames().contains(press()));
    actionsOf(&button)->doAction(press());
    QVERIFY(!button.isChecked());
}

void TestPressButton::theRemoveButtonSaysWhichDeviceItMeans()
{
    RemoveButton button;
    button.setDevice(QStringLiteral("Hub-A"));
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Remove Hub-A"));
    QVERIFY(!button.toolTip().isEmpty());
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Revert Hub-A"));
}

TESSEL_TEST_MAIN(TestPressButton)
#include "tst_pressbutton.moc"
