#include "fontscale.h"
#include "testcase.h"

#include <QScreen>
#include <QTest>
#include <QWidget>

class TestFontScale : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesGrowWithTheFontButDoNotShrink_data();
    void sizesGrowWithTheFontButDoNotShrink();
    void aFontInPixelsCountsLikeOneInPoints();
    void windowsAreNoLargerThanTheScreen();
};

namespace {

void setPoints(QWidget& widget, double points)
{
    QFont font = widget.font();
    font.setPointSizeF(points);
    widget.setFont(font);
}

} // namespace

void TestFontScale::sizesGrowWithTheFontButDoNotShrink_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("scaled");
    QTest::newRow("a small font") << 8.0 << 250;
    QTest::newRow("the usual font") << 10.0 << 250;
    QTest::newRow("half a point more") << 10.5 << 263;
    QTest::newRow("a large font") << 16.0 << 400;
    QTest::newRow("twice the usual font") << 20.0 << 500;
}

void TestFontScale::sizesGrowWithTheFontButDoNotShrink()
{
    QFETCH(const double, points);
    QWidget widget;
    setPoints(widget, points);
    QTEST(scaledToFont(250, &widget), "scaled");
}

void TestFontScale::aFontInPixelsCountsLikeOneInPoints()
{
    QWidget widget;
    QFont font = widget.font();
    font.setPixelSize(20);
    widget.setFont(font);
    QCOMPARE(scaledToFont(100, &widget), 150);
}

void TestFontScale::windowsAreNoLargerThanTheScreen()
{
    QWidget window;
    setPoints(window, 15);
    QCOMPARE(scaledToFont(QSize(400, 300), &window), QSize(600, 450));
    const QSize room = window.screen()->availableGeometry().size();
    const QSize largest = scaledToFont(QSize(4000, 3000), &window);
    QVERIFY(largest.width() < room.width() && largest.height() < room.height());
    QCOMPARE(scaledToFont(QSize(4000, 300), &window), QSize(largest.width(), 450));
}

TESSEL_TEST_MAIN(TestFontScale)
#include "tst_fontscale.moc"
