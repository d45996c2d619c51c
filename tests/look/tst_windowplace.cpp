#include "windowplace.h"

#include "fontscale.h"
#include "testcase.h"

#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

constexpr QSize least(400, 300);
constexpr QSize largest(600, 500);

void setPoints(QWidget& widget, double points)
{
    QFont font = widget.font();
    font.setPointSizeF(points);
    widget.setFont(font);
}

QRect screenOf(const QWidget& window)
{
    return window.screen()->availableGeometry();
}

} // namespace

class TestWindowPlace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void limitsAreInProportionToTheFont();
    void theLeastSizeGivesWayToTheScreen();
    void aScreenAsWideAsTheWindowHoldsIt();
    void aSizeThatTheScreenHoldsIsRestored();
    void aLargerSizeIsBroughtBackWithinTheScreen();
    void aWindowBeyondTheEdgeComesBack();
    void aWindowDraggedToAnotherScreenFitsItWithoutBeingMoved();
    void aScreenThatBecomesAnotherHasTheWindowInside();
    void aMaximizedWindowStaysSo();
};

void TestWindowPlace::limitsAreInProportionToTheFont()
{
    QWidget window;
    new WindowPlace(&window, least, largest);
    QCOMPARE(window.minimumSize(), least);
    QCOMPARE(window.maximumSize(), largest);
    setPoints(window, 15);
    QCOMPARE(window.minimumSize(), least * 1.5);
    QCOMPARE(window.maximumSize(), largest * 1.5);
    setPoints(window, 10);
    QCOMPARE(window.minimumSize(), least);
    QCOMPARE(window.maximumSize(), largest);
}

void TestWindowPlace::theLeastSizeGivesWayToTheScreen()
{
    QWidget window;
    new WindowPlace(&window, least * 20, largest * 20);
    QCOMPARE(window.minimumHeight(), roomOnScreen(&window).height());
    QCOMPARE(window.minimumWidth(), screenOf(window).width());
}

void TestWindowPlace::aScreenAsWideAsTheWindowHoldsIt()
{
    QWidget window;
    const QSize size(screenOf(window).width(), 300);
    new WindowPlace(&window, size, largest * 2);
    QCOMPARE(window.minimumSize(), size);
}

void TestWindowPlace::aSizeThatTheScreenHoldsIsRestored()
{
    QWidget window;
    WindowPlace place(&window, least, largest);
    place.restore({500, 400});
    QCOMPARE(window.size(), QSize(500, 400));
}

void TestWindowPlace::aLargerSizeIsBroughtBackWithinTheScreen()
{
    QWidget window;
    WindowPlace place(&window, least, largest * 10);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    place.restore(screenOf(window).size() * 2);
    QCOMPARE(window.size(), roomOnScreen(&window));
    QVERIFY(screenOf(window).contains(window.frameGeometry()));
}

void TestWindowPlace::aWindowBeyondTheEdgeComesBack()
{
    QWidget window;
    WindowPlace place(&window, least, largest);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const QPoint corner : {QPoint(-100, -100), screenOf(window).bottomRight()}) {
        window.move(corner);
        place.restore({500, 400});
        QVERIFY(screenOf(window).contains(window.frameGeometry()));
    }
}

void TestWindowPlace::aWindowDraggedToAnotherScreenFitsItWithoutBeingMoved()
{
    QWidget window;
    new WindowPlace(&window, least, largest * 10);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPoint place = screenOf(window).center();
    window.move(place);
    window.resize(screenOf(window).size() * 2);
    Q_EMIT window.windowHandle()->screenChanged(window.screen());
    QCOMPARE(window.size(), roomOnScreen(&window));
    QCOMPARE(window.pos(), place);
}

void TestWindowPlace::aScreenThatBecomesAnotherHasTheWindowInside()
{
    QWidget window;
    new WindowPlace(&window, least, largest);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.move(screenOf(window).center());
    Q_EMIT window.screen()->availableGeometryChanged(screenOf(window));
    QVERIFY(screenOf(window).contains(window.frameGeometry()));
}

void TestWindowPlace::aMaximizedWindowStaysSo()
{
    QWidget window;
    new WindowPlace(&window, least, largest * 10);
    window.showMaximized();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QRect before = window.geometry();
    setPoints(window, 12);
    QVERIFY(window.isMaximized());
    QCOMPARE(window.geometry(), before);
}

TESSEL_TEST_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
