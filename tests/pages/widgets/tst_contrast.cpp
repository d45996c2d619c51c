#include "contrast.h"
#include "testcase.h"

#include <QColor>
#include <QTest>

#include <cmath>

class TestContrast : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void blackStandsOutFromWhiteTheMost();
    void knownColours_data();
    void knownColours();
    void aGrayThatCanBeReadIsKept();
    void aGrayThatCannotBeReadGivesWayToOneThatCan_data();
    void aGrayThatCannotBeReadGivesWayToOneThatCan();
    void onEveryGroundTheGrayCanBeRead_data();
    void onEveryGroundTheGrayCanBeRead();
    void aGroundOnWhichATextCanBeReadIsKept();
    void anyGroundGivesWayToATextWithoutLosingItsHue_data();
    void anyGroundGivesWayToATextWithoutLosingItsHue();
};

void TestContrast::blackStandsOutFromWhiteTheMost()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
}

void TestContrast::knownColours_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    QTest::newRow("gray on white") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("red on white") << QColor(Qt::red) << QColor(Qt::white) << 4.00;
    QTest::newRow("blue on white") << QColor(Qt::blue) << QColor(Qt::white) << 8.59;
    QTest::newRow("lime on black") << QColor(Qt::green) << QColor(Qt::black) << 15.30;
}

void TestContrast::knownColours()
{
    QFETCH(const QColor, one);
    QFETCH(const QColor, other);
    QFETCH(const double, ratio);
    QVERIFY(std::abs(contrast(one, other) - ratio) < 0.01);
}

void TestContrast::aGrayThatCanBeReadIsKept()
{
    QCOMPARE(readableGray(Qt::darkGray, Qt::white), QColor(Qt::darkGray));
    QCOMPARE(readableGray(Qt::darkGray, Qt::black), QColor(Qt::darkGray));
}

void TestContrast::aGrayThatCannotBeReadGivesWayToOneThatCan_data()
{
    QTest::addColumn<QColor>("wanted");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<bool>("darker");
    QTest::newRow("pale on white") << QColor(Qt::gray) << QColor(Qt::white) << true;
    QTest::newRow("dim on black") << QColor(0x40, 0x40, 0x40) << QColor(Qt::black) << false;
    QTest::newRow("on a light blue") << QColor(Qt::darkGray) << QColor(0x30, 0x8C, 0xC6) << true;
    QTest::newRow("on a deep blue")
        << QColor(0x50, 0x50, 0x50) << QColor(0x14, 0x5C, 0x97) << false;
}

void TestContrast::aGrayThatCannotBeReadGivesWayToOneThatCan()
{
    QFETCH(const QColor, wanted);
    QFETCH(const QColor, ground);
    QFETCH(const bool, darker);
    QVERIFY(contrast(wanted, ground) < readableContrast);
    const QColor gray = readableGray(wanted, ground);
    QVERIFY(contrast(gray, ground) >= readableContrast);
    QCOMPARE(gray.lightness() < ground.lightness(), darker);
    QVERIFY(gray != QColor(Qt::black) && gray != QColor(Qt::white));
}

void TestContrast::onEveryGroundTheGrayCanBeRead_data()
{
    QTest::addColumn<double>("needed");
    QTest::newRow("at all") << readableContrast;
    QTest::newRow("with ease") << textContrast;
}

void TestContrast::onEveryGroundTheGrayCanBeRead()
{
    QFETCH(const double, needed);
    constexpr int step = 15;
    for (int red = 0; red <= 255; red += step) {
        for (int green = 0; green <= 255; green += step) {
            for (int blue = 0; blue <= 255; blue += step) {
                const QColor ground(red, green, blue);
                const QColor gray = readableGray(Qt::darkGray, ground, needed);
                QCOMPARE(gray.hsvSaturation(), 0);
                QVERIFY2(contrast(gray, ground) >= needed, qPrintable(ground.name()));
            }
        }
    }
}

void TestContrast::aGroundOnWhichATextCanBeReadIsKept()
{
    QCOMPARE(readableGround(Qt::darkBlue, Qt::white), QColor(Qt::darkBlue));
    QCOMPARE(readableGround(Qt::yellow, Qt::black), QColor(Qt::yellow));
}

void TestContrast::anyGroundGivesWayToATextWithoutLosingItsHue_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::newRow("white on light blue") << QColor(0x30, 0x8C, 0xC6) << QColor(Qt::white);
    QTest::newRow("white on yellow") << QColor(Qt::yellow) << QColor(Qt::white);
    QTest::newRow("black on deep blue") << QColor(0x14, 0x5C, 0x97) << QColor(Qt::black);
    QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("black on black") << QColor(Qt::black) << QColor(Qt::black);
}

void TestContrast::anyGroundGivesWayToATextWithoutLosingItsHue()
{
    QFETCH(const QColor, ground);
    QFETCH(const QColor, text);
    const QColor readable = readableGround(ground, text);
    QVERIFY(contrast(readable, text) >= textContrast);
    QVERIFY(qAbs(readable.hsvHue() - ground.hsvHue()) <= 1);
    // By no more than it takes.
    QVERIFY(contrast(readable, text) < 1.2 * textContrast || ground == text);
}

TESSEL_TEST_MAIN(TestContrast)
#include "tst_contrast.moc"
