#include "fakecontroller.h"
#include "layoutqueries.h"
#include "pagefixtures.h"
#include "pageroomdesign.h"
#include "roomeditor.h"
#include "roomqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class TestPageRoomDesign : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowToDraw();
    void startsEmptyWithNextDisabled();
    void nextNeedsTwoRooms();
    void nextStoresTheCellsColumnByColumnAndGoesOn();
    void anEmptyGridIsStoredOnlyWhenSomethingWasModified();
    void aFifthRoomIsIgnored();
    void removingRoomTwoOfThreeStoresTwoRooms();
    void anUnchangedDrawingKeepsTheLayouts();
    void aChangedDrawingDiscardsTheLayouts();
    void storingTwiceWritesOnce();
    void roomsThatAreNotContiguousLoad();
    void aMissingRoomRecordLeavesThatRoomEmpty();
    void isLoadedOnlyWhenReachedFromTheIntroduction();
    void loadingForgetsEarlierChanges();
    void restoringLoads();
    void savingStores();
    void resetEmptiesTheGridAndNotTheDocument();
    void closeAsksToQuit();
    void theGridIsReachedByKeyboardBeforeTheButtons();
    void nothingIsClippedAtTheSmallestWindow();
};

namespace {

constexpr int pitch = 50;
constexpr QPoint middle(26, 26);

QPoint at(int x, int y)
{
    return QPoint(x, y) * pitch + middle;
}

struct Step
{
    explicit Step(int enteredFrom = 1) { enter(enteredFrom); }

    void enter(int from)
    {
        page.enterFrom(from);
        page.resize(780, 540);
        page.show();
    }

    void click(int x, int y) { QTest::mouseClick(editor, Qt::LeftButton, {}, at(x, y)); }

    /// Draws with the left button held from one cell to another of the same column.
    void stroke(int x, int fromY, int toY)
    {
        QTest::mousePress(editor, Qt::LeftButton, {}, at(x, fromY));
        for (int y = fromY; y <= toY; ++y) {
            QTest::mouseMove(editor, at(x, y) + QPoint(1, 1));
        }
        QTest::mouseRelease(editor, Qt::LeftButton, {}, at(x, toY) + QPoint(1, 1));
    }

    TesselDoc doc{nullptr};
    FakeController controller;
    PageRoomDesign page{&controller, &doc, nullptr};
    RoomEditor* editor = page.findChild<RoomEditor*>(QStringLiteral("roomEditor"));
    QPushButton* next = buttonOf(page, "nextButton");
};

} // namespace

void TestPageRoomDesign::saysHowToDraw()
{
    const Step step;
    QCOMPARE(step.page.title(), QStringLiteral("2. Room Design"));
    QCOMPARE(step.page.pageNumber(), 2);
    const QStringList texts = labelTexts(step.page);
    for (const QLabel* label : step.page.findChildren<QLabel*>()) {
        QVERIFY(label->wordWrap());
    }
    const QStringList expected{
        QStringLiteral("Create an outline for up to four rooms. Mark cells identifying the "
                       "different rooms in the grid using the mouse."),
        QStringLiteral("Create larger rooms and room shapes by holding down the left mouse button "
                       "while moving the mouse over the cells you want to be part of the room.\n"
                       "To remove a room click on any cell that is part of that room again.")};
    QCOMPARE(texts, expected);
    QCOMPARE(step.editor->size(), QSize(402, 402));
}

void TestPageRoomDesign::startsEmptyWithNextDisabled()
{
    const Step step;
    QVERIFY(step.editor->cellsOf(1).isEmpty());
    QVERIFY(!step.next->isEnabled());
}

void TestPageRoomDesign::nextNeedsTwoRooms()
{
    Step step;
    step.click(0, 0);
    QVERIFY(!step.next->isEnabled());
    step.click(2, 0);
    QVERIFY(step.next->isEnabled());
    step.click(0, 0);
    QVERIFY(!step.next->isEnabled());
}

void TestPageRoomDesign::nextStoresTheCellsColumnByColumnAndGoesOn()
{
    Step step;
    step.click(1, 1);
    step.stroke(4, 2, 4);
    press(step.next);
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(roomCount(step.doc), 2);
    QCOMPARE(roomCells(step.doc, 1).value(), QList<QPoint>({{1, 1}}));
    QCOMPARE(roomCells(step.doc, 2).value(), QList<QPoint>({{4, 2}, {4, 3}, {4, 4}}));
}

void TestPageRoomDesign::anEmptyGridIsStoredOnlyWhenSomethingWasModified()
{
    Step step;
    drawRooms(step.doc, 2);
    step.page.storeToDocument();
    QCOMPARE(roomCount(step.doc), 2);

    step.click(5, 5);
    step.click(5, 5);
    step.page.storeToDocument();
    QCOMPARE(roomCount(step.doc), 0);
}

void TestPageRoomDesign::aFifthRoomIsIgnored()
{
    Step step;
    for (int room = 0; room < 4; ++room) {
        step.click(room * 2, 0);
    }
    step.click(0, 7);
    step.stroke(2, 5, 7);
    press(step.next);
    QCOMPARE(roomCount(step.doc), 4);
    for (int room = 1; room <= 4; ++room) {
        QCOMPARE(roomCells(step.doc, room).value().size(), 1);
    }
}

void TestPageRoomDesign::removingRoomTwoOfThreeStoresTwoRooms()
{
    Step step;
    step.stroke(0, 0, 2);
    step.stroke(2, 0, 2);
    step.stroke(4, 0, 2);
    step.click(2, 1);
    press(step.next);
    QCOMPARE(roomCount(step.doc), 2);
    QCOMPARE(roomCells(step.doc, 2).value(), QList<QPoint>({{4, 0}, {4, 1}, {4, 2}}));
}

void TestPageRoomDesign::anUnchangedDrawingKeepsTheLayouts()
{
    Step step;
    drawRooms(step.doc, 3);
    addTestLayout(step.doc, 1, QStringLiteral("1+2/3"));
    step.enter(1);
    press(step.next);
    QCOMPARE(roomCount(step.doc), 3);
    QCOMPARE(layoutCount(step.doc), 1);
}

void TestPageRoomDesign::aChangedDrawingDiscardsTheLayouts()
{
    Step step;
    drawRooms(step.doc, 3);
    addTestLayout(step.doc, 1, QStringLiteral("1+2/3"));
    step.enter(1);
    step.click(7, 7);
    press(step.next);
    QCOMPARE(roomCount(step.doc), 4);
    QCOMPARE(layoutCount(step.doc), 0);
}

void TestPageRoomDesign::storingTwiceWritesOnce()
{
    Step step;
    step.click(0, 0);
    step.click(2, 0);
    press(step.next);
    addTestLayout(step.doc, 1, QStringLiteral("1+2"));
    press(step.next);
    QCOMPARE(layoutCount(step.doc), 1);
    QCOMPARE(step.controller.nexts, 2);
}

void TestPageRoomDesign::roomsThatAreNotContiguousLoad()
{
    Step step;
    setRoomCells(step.doc, 1, {{0, 0}, {7, 7}});
    setRoomCells(step.doc, 2, {{7, 0}, {0, 7}});
    step.enter(1);
    QCOMPARE(step.editor->cellsOf(1), QList<QPoint>({{0, 0}, {7, 7}}));
    QCOMPARE(step.editor->cellsOf(2), QList<QPoint>({{0, 7}, {7, 0}}));
    QVERIFY(step.next->isEnabled());
}

void TestPageRoomDesign::aMissingRoomRecordLeavesThatRoomEmpty()
{
    Step step;
    setRoomCells(step.doc, 1, {{0, 0}});
    setRoomCells(step.doc, 3, {{4, 4}});
    step.enter(1);
    QVERIFY(step.editor->cellsOf(2).isEmpty());
    QCOMPARE(step.editor->cellsOf(3), QList<QPoint>({{4, 4}}));
}

void TestPageRoomDesign::isLoadedOnlyWhenReachedFromTheIntroduction()
{
    Step step;
    drawRooms(step.doc, 2);
    step.page.enterFrom(3);
    QVERIFY(step.editor->cellsOf(1).isEmpty());
    QVERIFY(!step.next->isEnabled());
    step.page.enterFrom(1);
    QCOMPARE(step.editor->cellsOf(1).size(), 16);
    QVERIFY(step.next->isEnabled());
}

void TestPageRoomDesign::loadingForgetsEarlierChanges()
{
    Step step;
    step.click(0, 0);
    step.enter(1);
    QVERIFY(step.editor->cellsOf(1).isEmpty());
    QVERIFY(!step.editor->isModified());
}

void TestPageRoomDesign::restoringLoads()
{
    Step step;
    drawRooms(step.doc, 4);
    step.page.restoreFromDocument();
    QCOMPARE(step.editor->cellsOf(4).size(), 16);
}

void TestPageRoomDesign::savingStores()
{
    Step step;
    step.click(3, 3);
    step.page.storeToDocument();
    QCOMPARE(roomCells(step.doc, 1).value(), QList<QPoint>({{3, 3}}));
    QCOMPARE(step.controller.nexts, 0);
}

void TestPageRoomDesign::resetEmptiesTheGridAndNotTheDocument()
{
    Step step;
    drawRooms(step.doc, 2);
    step.enter(1);
    press(buttonOf(step.page, "resetButton"));
    QVERIFY(step.editor->cellsOf(1).isEmpty());
    QVERIFY(!step.next->isEnabled());
    QCOMPARE(roomCount(step.doc), 2);
}

void TestPageRoomDesign::closeAsksToQuit()
{
    const Step step;
    auto* close = buttonOf(step.page, "closeButton");
    QCOMPARE(close->text(), QStringLiteral("Close"));
    press(close);
    QCOMPARE(step.controller.quits, 1);
    QCOMPARE(step.controller.backs, 0);
}

void TestPageRoomDesign::theGridIsReachedByKeyboardBeforeTheButtons()
{
    Step step;
    step.click(0, 0);
    step.click(2, 0);
    step.editor->setFocus();
    QCOMPARE(tabOrder(step.page),
             QStringList({QStringLiteral("roomEditor"), QStringLiteral("closeButton"),
                          QStringLiteral("resetButton"), QStringLiteral("nextButton")}));
}

void TestPageRoomDesign::nothingIsClippedAtTheSmallestWindow()
{
    const Step step;
    QVERIFY2(step.page.minimumSizeHint().height() <= 540,
             qPrintable(QString::number(step.page.minimumSizeHint().height())));
    for (const QLabel* label : step.page.findChildren<QLabel*>()) {
        QVERIFY(label->height() >= label->heightForWidth(label->width()));
    }
    QVERIFY(step.page.rect().contains(step.next->geometry()));
}

TESSEL_TEST_MAIN(TestPageRoomDesign)
#include "tst_pageroomdesign.moc"
