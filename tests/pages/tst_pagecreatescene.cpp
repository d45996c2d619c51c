#include "createscene.h"
#include "dialoganswerer.h"
#include "fakecontroller.h"
#include "layoutqueries.h"
#include "pagecreatescene.h"
#include "pagefixtures.h"
#include "roomqueries.h"
#include "sceneitem.h"
#include "tessel.h"
#include "tesselbutton.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

class TestPageCreateScene : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatALayoutIs();
    void startsWithoutLayoutsAndWithNextDisabled();
    void addingListsThePictureOfTheLinkedRooms();
    void everyRoomSeparateIsALayoutLikeAnyOther();
    void addingTheSameCombinationTwiceSelectsTheFirstRowAndSaysSo();
    void theOrderOfLinksMakesNoSecondLayout();
    void theTenthLayoutDisablesAddingAndRemovingAnyEnablesIt();
    void removingLayoutTwoOfFourRenumbersThreeAndFour();
    void removingTheLastLayoutDisablesNext();
    void aStrangerCannotRemove();
    void resetEmptiesTheStoredLayoutsAtOnceThoughTheInstallerGoesBack();
    void resetKeepsThePickersLinks();
    void nextStoresTheLayoutsInOrderAndGoesOn();
    void backStoresNothing();
    void storedLayoutsAreListedAgainWithLinksEmpty();
    void aMissingLayoutIsSkipped();
    void withoutRoomsThePickerStaysEmpty();
    void isLoadedOnlyWhenReachedFromAnEarlierStep();
    void restoringLoadsAndSavingStores();
    void worksWithTheKeyboardAlone();
    void theLayoutThatTabComesToIsInSight();
    void removingByKeyGoesOnInTheList();
    void arrowsLeadFromRemoveToThatOfAnotherRow();
    void removingLeavesTheFocusElsewhereAlone();
    void nothingIsClippedAtTheSmallestWindow();
};

namespace {

const QStringList combinationsOfFour{
    QStringLiteral("1/2/3/4"), QStringLiteral("1+2/3/4"), QStringLiteral("1+3/2/4"),
    QStringLiteral("1+4/2/3"), QStringLiteral("1/2+3/4"), QStringLiteral("1/2+4/3"),
    QStringLiteral("1/2/3+4"), QStringLiteral("1+2/3+4"), QStringLiteral("1+3/2+4"),
    QStringLiteral("1+4/2+3"), QStringLiteral("1+2+3/4")};

struct Step
{
    explicit Step(int rooms = 4)
    {
        drawRooms(doc, rooms);
        enter(3);
    }

    void enter(int from)
    {
        page.enterFrom(from);
        page.resize(780, 540);
        page.show();
    }

    /// The link box between rooms `room` and `room` + 1, which stand side by side.
    TesselButton* boxAfter(int room) const
    {
        QList<TesselButton*> boxes = tessel->findChildren<TesselButton*>();
        std::sort(boxes.begin(), boxes.end(),
                  [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
        return boxes.at(room - 1);
    }

    void link(int room) { press(boxAfter(room)); }

    void addLayout() { press(add); }

    /// Makes the listed layouts those of `groups`, as if they had been stored before.
    void list(const QStringList& groups)
    {
        for (int i = 0; i < groups.size(); ++i) {
            addTestLayout(doc, i + 1, groups.at(i));
        }
        enter(3);
    }

    SceneItem* item(int row) const
    {
        return qobject_cast<SceneItem*>(tree->itemWidget(tree->topLevelItem(row), 1));
    }

    QPushButton* removeButton(int row) const { return buttonOf(*item(row), "removeButton"); }

    void remove(int row) { press(removeButton(row)); }

    /// The keyboard goes to the window in front.
    bool activate()
    {
        page.activateWindow();
        return QTest::qWaitForWindowActive(&page);
    }

    bool isInSight(int row) const
    {
        const QWidget* button = removeButton(row);
        const QPoint corner = button->mapTo(tree->viewport(), QPoint());
        return tree->viewport()->rect().contains(QRect(corner, button->size()));
    }

    /// The list as text, for example "1:1+2/3/4".
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            texts.append(tree->topLevelItem(row)->text(0) + u':' + item(row)->roomGroup());
        }
        return texts;
    }

    TesselDoc doc{nullptr};
    FakeController controller;
    PageCreateScene page{&controller, &doc, nullptr};
    Tessel* tessel = page.findChild<Tessel*>(QStringLiteral("tessel"));
    QTreeWidget* tree = page.findChild<QTreeWidget*>(QStringLiteral("layoutList"));
    QPushButton* add = buttonOf(page, "addLayoutButton");
    QPushButton* next = buttonOf(page, "nextButton");
};

} // namespace

void TestPageCreateScene::saysWhatALayoutIs()
{
    const Step step;
    QCOMPARE(step.page.title(), QStringLiteral("4. Create room layouts"));
    QCOMPARE(step.page.pageNumber(), 4);
    const QStringList texts = labelTexts(step.page);
    const QStringList expected{
        QStringLiteral("Check the grey room link box to identify combined rooms in a room layout."),
        QStringLiteral("Same colors identify rooms that are combined, different colors identify "
                       "separate rooms."),
        QStringLiteral("Once a room layout is complete, click the Add Layout button to add that "
                       "room layout. Up to 10 room layouts can be defined.")};
    QCOMPARE(texts, expected);
    QCOMPARE(step.add->text(), QStringLiteral("Add Layout"));
    QCOMPARE(step.tree->headerItem()->text(0), QStringLiteral("No."));
    QCOMPARE(step.tree->headerItem()->text(1), QStringLiteral("Layout"));
    QCOMPARE(step.tessel->size(), QSize(393, 393));
}

void TestPageCreateScene::startsWithoutLayoutsAndWithNextDisabled()
{
    const Step step;
    QCOMPARE(step.tree->topLevelItemCount(), 0);
    QVERIFY(step.add->isEnabled());
    QVERIFY(!step.next->isEnabled());
}

void TestPageCreateScene::addingListsThePictureOfTheLinkedRooms()
{
    Step step;
    step.link(1);
    step.addLayout();
    QCOMPARE(step.rows(), strings({"1:1+2/3/4"}));
    QVERIFY(step.next->isEnabled());
    QCOMPARE(step.tree->topLevelItem(0)->sizeHint(1), QSize(66, 66));
    const QPixmap shown = step.item(0)->thumbnail();
    QCOMPARE(shown.size(), QSize(64, 64));
    QCOMPARE(shown.toImage(), step.tessel->renderThumbnail().scaled(64, 64).toImage());
    // Room 2, the second quarter from the left, has taken room 1's colour.
    QCOMPARE(shown.toImage().pixelColor(24, 32), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(buttonOf(*step.item(0), "removeButton")->text(), QStringLiteral("Remove"));
}

void TestPageCreateScene::everyRoomSeparateIsALayoutLikeAnyOther()
{
    Step step;
    step.addLayout();
    QCOMPARE(step.rows(), strings({"1:1/2/3/4"}));
}

void TestPageCreateScene::addingTheSameCombinationTwiceSelectsTheFirstRowAndSaysSo()
{
    Step step;
    step.link(1);
    step.addLayout();
    step.link(2);
    step.addLayout();
    step.link(2);
    const DialogAnswerer answer("Confirmation", pressing("OK"));
    step.addLayout();
    QCOMPARE(answer.text(), QStringLiteral("This room combination already exists."));
    QCOMPARE(answer.buttons(), QStringList(QStringLiteral("OK")));
    QCOMPARE(step.tree->currentItem(), step.tree->topLevelItem(0));
    QCOMPARE(step.rows(), strings({"1:1+2/3/4", "2:1+2+3/4"}));
}

void TestPageCreateScene::theOrderOfLinksMakesNoSecondLayout()
{
    Step step;
    step.link(1);
    step.link(3);
    step.addLayout();
    QCOMPARE(step.rows(), strings({"1:1+2/3+4"}));
    step.link(1);
    step.link(3);
    step.link(3);
    step.link(1);
    const DialogAnswerer answer("Confirmation", pressing("OK"));
    step.addLayout();
    QCOMPARE(step.rows(), strings({"1:1+2/3+4"}));
}

void TestPageCreateScene::theTenthLayoutDisablesAddingAndRemovingAnyEnablesIt()
{
    Step step;
    step.list(combinationsOfFour.mid(2, 9));
    QVERIFY(step.add->isEnabled());
    step.addLayout();
    QCOMPARE(step.tree->topLevelItemCount(), 10);
    QVERIFY(!step.add->isEnabled());
    step.remove(4);
    QCOMPARE(step.tree->topLevelItemCount(), 9);
    QVERIFY(step.add->isEnabled());
}

void TestPageCreateScene::removingLayoutTwoOfFourRenumbersThreeAndFour()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 4));
    step.remove(1);
    QCOMPARE(step.rows(), strings({"1:1/2/3/4", "2:1+3/2/4", "3:1+4/2/3"}));
    step.link(1);
    step.addLayout();
    QCOMPARE(step.rows().last(), QStringLiteral("4:1+2/3/4"));
}

void TestPageCreateScene::removingTheLastLayoutDisablesNext()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 2));
    step.remove(0);
    QVERIFY(step.next->isEnabled());
    step.remove(0);
    QCOMPARE(step.tree->topLevelItemCount(), 0);
    QVERIFY(!step.next->isEnabled());
}

void TestPageCreateScene::aStrangerCannotRemove()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 2));
    auto* content = step.page.findChild<CreateScene*>();
    SceneItem stranger(QPixmap(64, 64), QStringLiteral("1/2/3/4"));
    connect(&stranger, SIGNAL(removeClicked()), content, SLOT(removeButtonClicked()));
    buttonOf(stranger, "removeButton")->click();
    QPushButton noItem;
    connect(&noItem, SIGNAL(clicked()), content, SLOT(removeButtonClicked()));
    noItem.click();
    QCOMPARE(step.tree->topLevelItemCount(), 2);
}

void TestPageCreateScene::resetEmptiesTheStoredLayoutsAtOnceThoughTheInstallerGoesBack()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 10));
    press(buttonOf(step.page, "resetButton"));
    QCOMPARE(layoutCount(step.doc), 0);
    QCOMPARE(step.tree->topLevelItemCount(), 0);
    QVERIFY(step.add->isEnabled());
    QVERIFY(!step.next->isEnabled());
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(layoutCount(step.doc), 0);
    QCOMPARE(step.controller.backs, 1);
}

void TestPageCreateScene::resetKeepsThePickersLinks()
{
    Step step;
    step.link(2);
    press(buttonOf(step.page, "resetButton"));
    QCOMPARE(step.tessel->roomGroupText(), QStringLiteral("1/2+3/4"));
}

void TestPageCreateScene::nextStoresTheLayoutsInOrderAndGoesOn()
{
    Step step;
    step.addLayout();
    step.link(1);
    step.addLayout();
    press(step.next);
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(layoutCount(step.doc), 2);
    QCOMPARE(layoutAt(step.doc, 1)->roomGroup, QStringLiteral("1/2/3/4"));
    QCOMPARE(layoutAt(step.doc, 2)->roomGroup, QStringLiteral("1+2/3/4"));
    QCOMPARE(layoutAt(step.doc, 2)->thumbnail.toImage(), step.item(1)->thumbnail().toImage());

    step.remove(0);
    press(step.next);
    QCOMPARE(layoutCount(step.doc), 1);
    QCOMPARE(layoutAt(step.doc, 1)->roomGroup, QStringLiteral("1+2/3/4"));
}

void TestPageCreateScene::backStoresNothing()
{
    Step step;
    step.addLayout();
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    QCOMPARE(layoutCount(step.doc), 0);
}

void TestPageCreateScene::storedLayoutsAreListedAgainWithLinksEmpty()
{
    Step step;
    step.link(1);
    step.addLayout();
    press(step.next);
    step.enter(3);
    QCOMPARE(step.rows(), strings({"1:1+2/3/4"}));
    QCOMPARE(step.item(0)->thumbnail().size(), QSize(64, 64));
    QCOMPARE(step.tessel->roomGroupText(), QStringLiteral("1/2/3/4"));
    QVERIFY(step.next->isEnabled());
}

void TestPageCreateScene::aMissingLayoutIsSkipped()
{
    Step step;
    addTestLayout(step.doc, 1, combinationsOfFour.at(0));
    addTestLayout(step.doc, 3, combinationsOfFour.at(1));
    addTestLayout(step.doc, 7, combinationsOfFour.at(2));
    step.enter(3);
    QCOMPARE(step.rows(), strings({"1:1/2/3/4", "3:1+2/3/4"}));
}

void TestPageCreateScene::withoutRoomsThePickerStaysEmpty()
{
    const Step step(0);
    QCOMPARE(step.tessel->maxRoomNumber(), 0);
    QVERIFY(step.tessel->findChildren<TesselButton*>().isEmpty());
}

void TestPageCreateScene::isLoadedOnlyWhenReachedFromAnEarlierStep()
{
    Step step;
    step.link(1);
    step.addLayout();
    step.enter(5);
    QCOMPARE(step.rows(), strings({"1:1+2/3/4"}));
    QCOMPARE(step.tessel->roomGroupText(), QStringLiteral("1+2/3/4"));
    step.enter(1);
    QVERIFY(step.rows().isEmpty());
    QCOMPARE(step.tessel->roomGroupText(), QStringLiteral("1/2/3/4"));
}

void TestPageCreateScene::restoringLoadsAndSavingStores()
{
    Step step;
    addTestLayout(step.doc, 1, combinationsOfFour.at(3));
    step.page.restoreFromDocument();
    QCOMPARE(step.rows(), strings({"1:1+4/2/3"}));
    step.addLayout();
    step.page.storeToDocument();
    QCOMPARE(layoutCount(step.doc), 2);
    QCOMPARE(step.controller.nexts, 0);
}

void TestPageCreateScene::worksWithTheKeyboardAlone()
{
    Step step;
    step.boxAfter(1)->setFocus();
    QTest::keyClick(step.boxAfter(1), Qt::Key_Space);
    step.add->setFocus();
    QTest::keyClick(step.add, Qt::Key_Space);
    QCOMPARE(step.rows(), strings({"1:1+2/3/4"}));
    QStringList order = tabOrder(step.page);
    order.removeDuplicates();
    const QStringList expected{QStringLiteral("tessel"),     QStringLiteral("addLayoutButton"),
                               QStringLiteral("layoutList"), QStringLiteral("removeButton"),
                               QStringLiteral("backButton"), QStringLiteral("resetButton"),
                               QStringLiteral("nextButton")};
    for (int i = 1; i < expected.size(); ++i) {
        QVERIFY2(order.indexOf(expected.at(i - 1)) < order.indexOf(expected.at(i)),
                 qPrintable(order.join(u' ')));
    }
    auto* remove = buttonOf(*step.item(0), "removeButton");
    QCOMPARE(remove->accessibleName(), QStringLiteral("Remove layout 1+2/3/4"));
    const QModelIndex cell = step.tree->model()->index(0, 1);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Layout 1+2/3/4"));
    QTest::keyClick(remove, Qt::Key_Space);
    QVERIFY(step.rows().isEmpty());
}

void TestPageCreateScene::theLayoutThatTabComesToIsInSight()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 10));
    QVERIFY(step.activate());
    step.tree->setFocus();
    for (int row = 0; row < 10; ++row) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), step.removeButton(row));
        QCOMPARE(step.tree->currentItem(), step.tree->topLevelItem(row));
        QVERIFY(step.isInSight(row));
    }
}

void TestPageCreateScene::arrowsLeadFromRemoveToThatOfAnotherRow()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 3));
    QVERIFY(step.activate());
    step.removeButton(2)->setFocus(Qt::TabFocusReason);
    const QList<std::pair<Qt::Key, int>> keys{{Qt::Key_Up, 1},   {Qt::Key_Up, 0},
                                              {Qt::Key_Up, 0},   {Qt::Key_Down, 1},
                                              {Qt::Key_Down, 2}, {Qt::Key_Down, 2}};
    for (const auto& [key, row] : keys) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(QApplication::focusWidget(), step.removeButton(row));
        QCOMPARE(step.tree->currentIndex().row(), row);
    }
}

void TestPageCreateScene::removingByKeyGoesOnInTheList()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 10));
    QVERIFY(step.activate());
    step.removeButton(7)->setFocus(Qt::TabFocusReason);
    // Row by row from below the removed one, then upwards.
    for (const int row : {7, 7, 6, 5, 4, 3, 2, 1, 0}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(QApplication::focusWidget(), step.removeButton(row));
        QVERIFY(step.isInSight(row));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(step.rows().isEmpty());
    QCOMPARE(QApplication::focusWidget(), step.add);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(step.rows(), strings({"1:1/2/3/4"}));
    QCOMPARE(step.controller.backs, 0);
}

void TestPageCreateScene::removingLeavesTheFocusElsewhereAlone()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 3));
    QVERIFY(step.activate());
    step.tessel->setFocus();
    step.removeButton(2)->click();
    QCOMPARE(step.tree->topLevelItemCount(), 2);
    QCOMPARE(QApplication::focusWidget(), step.tessel);
}

void TestPageCreateScene::nothingIsClippedAtTheSmallestWindow()
{
    Step step;
    step.list(combinationsOfFour.mid(0, 10));
    QVERIFY(step.page.minimumSizeHint().height() <= 540);
    QVERIFY(step.page.minimumSizeHint().width() <= 780);
    auto* remove = buttonOf(*step.item(0), "removeButton");
    QVERIFY(remove->width() >= remove->sizeHint().width());
    QVERIFY(remove->mapTo(step.tree, remove->rect().topRight()).x() <=
            step.tree->viewport()->geometry().right());
}

TESSEL_TEST_MAIN(TestPageCreateScene)
#include "tst_pagecreatescene.moc"
