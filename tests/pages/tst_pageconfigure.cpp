#include "configurestep.h"
#include "layoutqueries.h"
#include "pagefixtures.h"
#include "removebutton.h"
#include "setqueries.h"
#include "tablefixtures.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

class TestPageConfigure : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToDo();
    void everyCombinedRoomIsListedAlsoOneOfASingleRoom();
    void twoHubsAreRedAndNextIsDisabledUntilOneIsRemoved();
    void removingOneOfSeventeenMicrophonesAndSpeakersMakesTheSetValid();
    void oneInvalidSetAmongValidOnesDisablesNext();
    void resetTakesBackEveryDeviceOfEverySet();
    void resetCanMakeASetInvalidAgain();
    void theDocumentIsNotTouchedUntilNext();
    void nextStoresEveryDeviceOfEverySetRemovedOrNot();
    void setsThatWereNeverLookedAtAreStoredToo();
    void comingBackFromStep6KeepsTheSets();
    void enteringFromStep4TakesEarlierRemovalsFromTheDocument();
    void removalsFollowTheSetNumberWhenLayoutsChange();
    void restoringTakesRemovalsFromTheDocument();
    void withoutLayoutsNextIsEnabled();
    void selectingARowShowsItsPanelAndPicture();
    void tabGoesFromTheListThroughTheShownPanelToTheButtons();
    void aSelectedRowOfAnInvalidSetStaysRed();
    void anInvalidSetIsNotToldByColourAlone();
};

namespace {

const QString network = QStringLiteral("127.51.2");

} // namespace

void TestPageConfigure::saysWhatToDo()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.page.title(), QStringLiteral("5. Select the Devices for each combined rooms"));
    QCOMPARE(step.page.pageNumber(), 5);
    const QStringList texts = labelTexts(step.page);
    for (const char* text :
         {"Select which devices are to be used in each of the room combinations created in the "
          "previous step.",
          "For combined rooms select the devices that are to be used in that configuration. \n"
          "Please select exactly one PX-HB and up to 16 other peripheraals.",
          "If more devices than supported are being selected the listing will appear in red.",
          "Select a room combination", "PX-HB", "Peripheral"}) {
        QVERIFY2(texts.contains(QString::fromLatin1(text)), text);
    }
    const QStringList headers{QStringLiteral("Hostname"),
                              QString(),
                              QStringLiteral("Model"),
                              QStringLiteral("IP Address"),
                              QStringLiteral("Room"),
                              QString(),
                              QString()};
    QCOMPARE(step.hubs()->columnCount(), int(headers.size()));
    for (int column = 0; column < headers.size(); ++column) {
        QCOMPARE(step.hubs()->headerItem()->text(column), headers.at(column));
        QCOMPARE(step.peripherals()->headerItem()->text(column), headers.at(column));
    }
}

void TestPageConfigure::everyCombinedRoomIsListedAlsoOneOfASingleRoom()
{
    ConfigureStep step(network);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2/3"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2/3"), Qt::yellow);
    step.enter();
    QCOMPARE(columnTexts(*step.list, "No.").join(u' '), QStringLiteral("1 2 3 4 5"));
    QCOMPARE(columnTexts(*step.list, "Layout").join(u' '), QStringLiteral("1 1 2 2 2"));
    QCOMPARE(columnTexts(*step.list, "Room").join(u' '), QStringLiteral("1,2 3 1 2 3"));
    QCOMPARE(step.list->topLevelItem(0)->background(2).color(), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(step.list->topLevelItem(3)->background(2).color(), QColor(0x44, 0x84, 0x47));
    QCOMPARE(step.list->currentItem(), step.list->topLevelItem(0));
}

void TestPageConfigure::twoHubsAreRedAndNextIsDisabledUntilOneIsRemoved()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-HB", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    QVERIFY(step.isRed(0));
    QVERIFY(!step.canGoOn());
    press(step.button(2));
    QVERIFY(step.isBlack(0));
    QVERIFY(step.canGoOn());
    press(step.button(2));
    QVERIFY(step.isRed(0));
    QVERIFY(!step.canGoOn());
}

void TestPageConfigure::removingOneOfSeventeenMicrophonesAndSpeakersMakesTheSetValid()
{
    ConfigureStep step(network);
    step.place("PX-DL", 9, 1);
    step.place("LQA4-08S", 8, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QVERIFY(step.isRed(0));
    press(step.button(12));
    QVERIFY(step.isBlack(0));
    QVERIFY(step.canGoOn());
}

void TestPageConfigure::oneInvalidSetAmongValidOnesDisablesNext()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-HB", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1/2"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1+2"), Qt::yellow);
    step.enter();
    QVERIFY(step.isBlack(0));
    QVERIFY(step.isBlack(1));
    QVERIFY(step.isRed(2));
    QVERIFY(!step.canGoOn());
}

void TestPageConfigure::resetTakesBackEveryDeviceOfEverySet()
{
    ConfigureStep step(network);
    step.place("PX-DL", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2"), Qt::yellow);
    // The second set is removed from, but not looked at, before Reset.
    addToDeviceSet(step.doc, 2, 2, step.address(2), true);
    step.enter();
    press(step.button(1));
    press(buttonOf(step.page, "resetButton"));
    QVERIFY(!step.button(1)->isRemoved());
    QVERIFY(allTextsAre(step.row(1), Qt::black));
    QCOMPARE(step.counts(), QStringLiteral("0 2 0 0"));
    selectGroup(step.page, 1);
    QVERIFY(!step.button(2)->isRemoved());
    QCOMPARE(step.counts(), QStringLiteral("0 2 0 0"));
}

void TestPageConfigure::resetCanMakeASetInvalidAgain()
{
    ConfigureStep step(network);
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, step.address(2), true);
    step.enter();
    QVERIFY(step.canGoOn());
    press(buttonOf(step.page, "resetButton"));
    QVERIFY(step.isRed(0));
    QVERIFY(!step.canGoOn());
}

void TestPageConfigure::theDocumentIsNotTouchedUntilNext()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, step.address(1), true);
    step.enter();
    press(buttonOf(step.page, "resetButton"));
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(true));
}

void TestPageConfigure::nextStoresEveryDeviceOfEverySetRemovedOrNot()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 9, 9, step.address(1), true);
    step.enter();
    press(step.button(2));
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(false));
    QCOMPARE(step.storedRemoval(1, 1, 2), std::optional(true));
    QCOMPARE(step.storedRemoval(9, 9, 1), std::nullopt);
}

void TestPageConfigure::setsThatWereNeverLookedAtAreStoredToo()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-HB", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1/2"), Qt::cyan);
    addToDeviceSet(step.doc, 2, 1, step.address(2), true);
    step.enter();
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(false));
    QCOMPARE(step.storedRemoval(2, 1, 2), std::optional(true));
}

void TestPageConfigure::comingBackFromStep6KeepsTheSets()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    step.page.enterFrom(6);
    QVERIFY(step.button(1)->isRemoved());
}

void TestPageConfigure::enteringFromStep4TakesEarlierRemovalsFromTheDocument()
{
    ConfigureStep step(network);
    step.place("PX-DL", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    step.page.storeToDocument();
    press(step.button(2));
    step.page.enterFrom(4);
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(allTextsAre(step.row(1), Qt::darkGray));
    QVERIFY(!step.button(2)->isRemoved());
    QCOMPARE(step.counts(), QStringLiteral("0 1 0 0"));
    QCOMPARE(step.list->topLevelItemCount(), 1);
}

void TestPageConfigure::removalsFollowTheSetNumberWhenLayoutsChange()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    press(step.button(1));
    press(buttonOf(step.page, "nextButton"));
    clearLayouts(step.doc);
    addColouredLayout(step.doc, 1, QStringLiteral("1/2"), Qt::yellow);
    step.page.enterFrom(4);
    // Set 1 of layout 1 is now another combined room with the same device in it.
    QVERIFY(step.button(1)->isRemoved());
}

void TestPageConfigure::restoringTakesRemovalsFromTheDocument()
{
    ConfigureStep step(network);
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, step.address(1), true);
    step.page.restoreFromDocument();
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(step.canGoOn());
}

void TestPageConfigure::withoutLayoutsNextIsEnabled()
{
    ConfigureStep step(network);
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QVERIFY(!step.canGoOn());
    clearLayouts(step.doc);
    step.page.enterFrom(4);
    QCOMPARE(step.list->topLevelItemCount(), 0);
    QVERIFY(step.canGoOn());
    press(buttonOf(step.page, "resetButton"));
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.controller.nexts, 1);
}

void TestPageConfigure::selectingARowShowsItsPanelAndPicture()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-HB", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("2"), Qt::yellow);
    step.enter();
    QCOMPARE(shownPicture(*shownPanel(step.page)), QColor(Qt::cyan));
    selectGroup(step.page, 1);
    QCOMPARE(shownPicture(*shownPanel(step.page)), QColor(Qt::yellow));
    QVERIFY(step.row(2));
}

void TestPageConfigure::tabGoesFromTheListThroughTheShownPanelToTheButtons()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1+2"), Qt::yellow);
    step.enter();
    selectGroup(step.page, 1);
    QVERIFY(QTest::qWaitForWindowActive(&step.page));
    step.list->setFocus();
    const QList<QWidget*> order{tableOf(*shownPanel(step.page), "summaryTable"),
                                step.hubs(),
                                step.hubs()->itemWidget(step.row(1), 1),
                                step.button(1),
                                step.peripherals(),
                                step.peripherals()->itemWidget(step.row(2), 1),
                                step.button(2),
                                buttonOf(step.page, "backButton")};
    for (const QWidget* stop : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stop);
    }
}

void TestPageConfigure::aSelectedRowOfAnInvalidSetStaysRed()
{
    ConfigureStep step(network);
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    const QRect row = step.list->visualItemRect(step.list->topLevelItem(0));
    const QPoint cell(step.list->columnViewportPosition(1) + 2, row.center().y());
    const auto colour = [&] {
        return step.list->viewport()->grab().toImage().pixelColor(cell).hue();
    };
    QCOMPARE(colour(), QColor(Qt::red).hue());
    press(step.button(1));
    QVERIFY(colour() != QColor(Qt::red).hue());
}

void TestPageConfigure::anInvalidSetIsNotToldByColourAlone()
{
    ConfigureStep step(network);
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    const auto told = [&step](int column) {
        return step.list->topLevelItem(0)->data(column, Qt::AccessibleDescriptionRole).toString();
    };
    for (const int column : {0, 1}) {
        QCOMPARE(told(column), QStringLiteral("Layout 1, room 1 has 2 PX-HBs; 1 is possible."));
        QCOMPARE(step.list->topLevelItem(0)->toolTip(column), told(column));
    }
    press(step.button(1));
    for (const int column : {0, 1}) {
        QVERIFY(told(column).isEmpty());
    }
}

TESSEL_TEST_MAIN(TestPageConfigure)
#include "tst_pageconfigure.moc"
