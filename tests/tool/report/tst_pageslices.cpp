#include "pageslices.h"
#include "testcase.h"

#include <QTest>

namespace {

/// Strips that follow each other without gaps, each 10 high.
QList<Strip> strips(int count)
{
    QList<Strip> strips;
    for (int index = 0; index < count; ++index) {
        strips.append({{10.0 * index, 10.0 * index + 10}, false, {}});
    }
    return strips;
}

/// The bodies of pages as text: "0-30 30-50".
QString bodies(const QList<PageSlice>& slices)
{
    QStringList bodies;
    for (const PageSlice& slice : slices) {
        bodies.append(QStringLiteral("%1-%2").arg(slice.body.top).arg(slice.body.bottom));
    }
    return bodies.join(u' ');
}

} // namespace

/// Parting a long text into pages.
class TestPageSlices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingTakesNoPage();
    void aPageIsFilledAndNoStripIsCut();
    void aHeadingGoesWithWhatFollowsIt();
    void headingsOfHeadingsGoTogether();
    void aHeadingAtTheEndIsNotLost();
    void whatBelongsTogetherAndNeedsMoreThanAPageIsParted();
    void titlesOfColumnsAreRepeatedAndTakeRoom();
    void aStripThatIsHigherThanAPageGoesOnOnTheNext();
    void everyStripIsOnExactlyOnePage();
};

void TestPageSlices::nothingTakesNoPage()
{
    QVERIFY(slicedIntoPages({}, 100).isEmpty());
}

void TestPageSlices::aPageIsFilledAndNoStripIsCut()
{
    QCOMPARE(bodies(slicedIntoPages(strips(5), 35)), QStringLiteral("0-30 30-50"));
}

void TestPageSlices::aHeadingGoesWithWhatFollowsIt()
{
    QList<Strip> text = strips(5);
    text[2].isKeptWithNext = true;
    QCOMPARE(bodies(slicedIntoPages(text, 35)), QStringLiteral("0-20 20-50"));
}

void TestPageSlices::headingsOfHeadingsGoTogether()
{
    QList<Strip> text = strips(5);
    text[1].isKeptWithNext = true;
    text[2].isKeptWithNext = true;
    QCOMPARE(bodies(slicedIntoPages(text, 35)), QStringLiteral("0-10 10-40 40-50"));
}

void TestPageSlices::aHeadingAtTheEndIsNotLost()
{
    QList<Strip> text = strips(3);
    text[2].isKeptWithNext = true;
    QCOMPARE(bodies(slicedIntoPages(text, 25)), QStringLiteral("0-20 20-30"));
}

void TestPageSlices::whatBelongsTogetherAndNeedsMoreThanAPageIsParted()
{
    QList<Strip> text = strips(6);
    for (int index = 1; index < 5; ++index) {
        text[index].isKeptWithNext = true;
    }
    QCOMPARE(bodies(slicedIntoPages(text, 35)), QStringLiteral("0-10 10-40 40-60"));
}

void TestPageSlices::titlesOfColumnsAreRepeatedAndTakeRoom()
{
    QList<Strip> text = strips(6);
    for (int index = 1; index < 6; ++index) {
        text[index].head = Span{0, 4};
    }
    const QList<PageSlice> slices = slicedIntoPages(text, 30);
    QCOMPARE(bodies(slices), QStringLiteral("0-30 30-50 50-60"));
    QVERIFY(!slices.first().head);
    QVERIFY(slices.at(1).head);
    QCOMPARE(slices.at(1).head->bottom, 4.0);
}

void TestPageSlices::aStripThatIsHigherThanAPageGoesOnOnTheNext()
{
    const QList<Strip> text{{{0, 10}, false, {}}, {{10, 85}, false, {}}, {{85, 95}, false, {}}};
    QCOMPARE(bodies(slicedIntoPages(text, 30)), QStringLiteral("0-10 10-40 40-70 70-85 85-95"));
}

void TestPageSlices::everyStripIsOnExactlyOnePage()
{
    for (int height = 5; height < 80; height += 7) {
        QList<Strip> text = strips(40);
        for (int index = 0; index < text.size(); index += 3) {
            text[index].isKeptWithNext = true;
        }
        qreal end = 0;
        for (const PageSlice& slice : slicedIntoPages(text, height)) {
            QCOMPARE(slice.body.top, end);
            QVERIFY(slice.body.height() > 0 && slice.body.height() <= height);
            end = slice.body.bottom;
        }
        QCOMPARE(end, text.last().span.bottom);
    }
}

TESSEL_TEST_MAIN(TestPageSlices)
#include "tst_pageslices.moc"
