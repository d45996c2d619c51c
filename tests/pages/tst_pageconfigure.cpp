#include "datakey.h"
#include "datakind.h"
#include "fakecontroller.h"
#include "layoutqueries.h"
#include "pageconfigure.h"
#include "pagefixtures.h"
#include "removebutton.h"
#include "setqueries.h"
#include "tablefixtures.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTreeWidget>

class TestPageConfigure : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToDo();
    void everyCombinedRoomIsListedAlsoOneOfASingleRoom();
    void hubsAndPeripheralsAreListedByHostname();
    void theSummaryCountsWhatIsInTheSet();
    void limits_data();
    void limits();
    void twoHubsAreRedAndNextIsDisabledUntilOneIsRemoved();
    void removingOneOfSeventeenMicrophonesAndSpeakersMakesTheSetValid();
    void oneInvalidSetAmongValidOnesDisablesNext();
    void aDeviceHasItsOwnRemovedFlagInEverySetThatContainsItsRoom();
    void revertingARemovedDeviceRestoresBlackTextsAndTheRemoveLabel();
    void resetTakesBackEveryDeviceOfEverySet();
    void resetCanMakeASetInvalidAgain();
    void theDocumentIsNotTouchedUntilNext();
    void nextStoresEveryDeviceOfEverySetRemovedOrNot();
    void theStoredOrderIsThatOfFillingWhateverTheTableShows();
    void setsThatWereNeverLookedAtAreStoredToo();
    void storingReturnsSpeakersToTheLeft();
    void comingBackFromStep6KeepsTheSets();
    void enteringFromStep4TakesEarlierRemovalsFromTheDocument();
    void removalsFollowTheSetNumberWhenLayoutsChange();
    void restoringTakesRemovalsFromTheDocument();
    void withoutLayoutsNextIsEnabled();
    void aDeviceHandedOverTwiceIsListedOnce();
    void theIdentifyButtonMakesTheDeviceIdentifyItself();
    void removingWorksWithTheKeyboard();
    void selectingARowShowsItsPanelAndPicture();
    void tabGoesFromTheListThroughTheShownPanelToTheButtons();
    void aSelectedRowOfAnInvalidSetStaysRed();
};

namespace {

constexpr int addressColumn = 3;
constexpr int removeColumn = 5;
constexpr quint16 textCommandPort = 49280;

QString address(int number)
{
    return QStringLiteral("127.51.2.%1").arg(number);
}

/// A page over a document that the test fills before it enters.
struct Step
{
    /// Adds `count` devices of `model` in `room`, at the next free addresses.
    void place(const char* model, int count, int room)
    {
        for (int i = 0; i < count; ++i) {
            ++placed;
            addTestDevice(doc, QStringLiteral("dev-%1").arg(placed, 3, 10, QLatin1Char('0')),
                          QString::fromLatin1(model), address(placed), room);
        }
    }

    void enter()
    {
        page.enterFrom(4);
        page.resize(780, 540);
        page.show();
    }

    QTreeWidget* hubs() const { return tableOf(*shownPanel(page), "hubTable"); }
    QTreeWidget* peripherals() const { return tableOf(*shownPanel(page), "peripheralTable"); }

    QTreeWidgetItem* row(int device) const
    {
        QTreeWidgetItem* hub = rowWith(*hubs(), addressColumn, address(device));
        return hub ? hub : rowWith(*peripherals(), addressColumn, address(device));
    }

    RemoveButton* button(int device) const
    {
        QTreeWidgetItem* item = row(device);
        return qobject_cast<RemoveButton*>(item->treeWidget()->itemWidget(item, removeColumn));
    }

    QString counts() const
    {
        const QTreeWidgetItem* summary =
            tableOf(*shownPanel(page), "summaryTable")->topLevelItem(0);
        return QStringLiteral("%1 %2 %3 %4")
            .arg(summary->text(0), summary->text(1), summary->text(2), summary->text(3));
    }

    bool isRed(int group) const
    {
        const QTreeWidgetItem* item = list->topLevelItem(group);
        return item->foreground(0).color() == QColor(Qt::red) &&
               item->foreground(1).color() == QColor(Qt::red);
    }

    bool isBlack(int group) const
    {
        const QTreeWidgetItem* item = list->topLevelItem(group);
        return item->foreground(0).color() == QColor(Qt::black) &&
               item->foreground(1).color() == QColor(Qt::black);
    }

    bool canGoOn() const { return buttonOf(page, "nextButton")->isEnabled(); }

    std::optional<bool> storedRemoval(int deviceSet, int scene, int device)
    {
        const auto record = deviceSetRecord(doc, deviceSet, scene, address(device));
        return record ? std::optional(record->remove) : std::nullopt;
    }

    TesselDoc doc{nullptr};
    FakeController controller;
    PageConfigure page{&controller, &doc, nullptr};
    QTreeWidget* list = tableOf(page, "roomGroupList");
    int placed = 0;
};

QStringList storedAddresses(IDocAccessor& doc)
{
    QList<QVariantMap> records;
    doc.getDataList(DataKind::DeviceSet, {}, records);
    QStringList addresses;
    for (const QVariantMap& record : records) {
        addresses.append(record.value(DataKey::deviceIPAddress()).toString());
    }
    return addresses;
}

bool allTextsAre(const QTreeWidgetItem* row, const QColor& colour)
{
    for (const int column : {0, 2, 3, 4}) {
        if (row->foreground(column).color() != colour) {
            return false;
        }
    }
    return true;
}

} // namespace

void TestPageConfigure::saysWhatToDo()
{
    Step step;
    step.place("PX-HB", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.page.title(), QStringLiteral("5. Select the Devices for each combined rooms"));
    QCOMPARE(step.page.pageNumber(), 5);
    QStringList texts;
    for (const auto* label : step.page.findChildren<QLabel*>()) {
        texts.append(label->text());
    }
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
    Step step;
    addColouredLayout(step.doc, 1, QStringLiteral("1+2/3"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2/3"), Qt::yellow);
    step.enter();
    QCOMPARE(columnTexts(*step.list, 0).join(u' '), QStringLiteral("1 2 3 4 5"));
    QCOMPARE(columnTexts(*step.list, 1).join(u' '), QStringLiteral("1 1 2 2 2"));
    QCOMPARE(columnTexts(*step.list, 2).join(u' '), QStringLiteral("1,2 3 1 2 3"));
    QCOMPARE(step.list->topLevelItem(0)->background(2).color(), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(step.list->topLevelItem(3)->background(2).color(), QColor(0x44, 0x84, 0x47));
    QCOMPARE(step.list->currentItem(), step.list->topLevelItem(0));
}

void TestPageConfigure::hubsAndPeripheralsAreListedByHostname()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("b-mic"), QStringLiteral("PX-DL"), address(1), 2);
    addTestDevice(step.doc, QStringLiteral("a-odd"), QStringLiteral("PX-ODD"), address(2), 1);
    addTestDevice(step.doc, QStringLiteral("hub"), QStringLiteral("PX-HB2"), address(3), 1);
    addTestDevice(step.doc, QStringLiteral("elsewhere"), QStringLiteral("PX-HB"), address(4), 3);
    addTestDevice(step.doc, QStringLiteral("nowhere"), QStringLiteral("PX-HB"), address(5), 0);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    QCOMPARE(columnTexts(*step.hubs(), 0), QStringList{QStringLiteral("hub")});
    QCOMPARE(columnTexts(*step.peripherals(), 0).join(u' '), QStringLiteral("a-odd b-mic"));
    QCOMPARE(columnTexts(*step.peripherals(), 2).join(u' '), QStringLiteral("PX-ODD PX-DL"));
    QCOMPARE(columnTexts(*step.peripherals(), 4).join(u' '), QStringLiteral("1 2"));
}

void TestPageConfigure::theSummaryCountsWhatIsInTheSet()
{
    Step step;
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 2, 1);
    step.place("PX-NDE", 1, 1);
    step.place("LQA4-08S", 2, 1);
    step.place("PNB-QE7", 1, 1);
    step.place("PX-ODD", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.counts(), QStringLiteral("1 3 2 1"));
    press(step.button(2));
    press(step.button(1));
    QCOMPARE(step.counts(), QStringLiteral("0 2 2 1"));
    press(step.button(2));
    QCOMPARE(step.counts(), QStringLiteral("0 3 2 1"));
}

void TestPageConfigure::limits_data()
{
    QTest::addColumn<int>("hubs");
    QTest::addColumn<int>("microphones");
    QTest::addColumn<int>("speakers");
    QTest::addColumn<int>("controllers");
    QTest::addColumn<int>("others");
    QTest::addColumn<bool>("valid");

    QTest::newRow("a group with no hub is valid") << 0 << 1 << 0 << 0 << 0 << true;
    QTest::newRow("a group with nothing at all is valid") << 0 << 0 << 0 << 0 << 0 << true;
    QTest::newRow("one hub is valid") << 1 << 0 << 0 << 0 << 0 << true;
    QTest::newRow("two hubs are red") << 2 << 0 << 0 << 0 << 0 << false;
    QTest::newRow("16 microphones and speakers are valid") << 1 << 10 << 6 << 0 << 0 << true;
    QTest::newRow("17 microphones and speakers are red") << 1 << 10 << 7 << 0 << 0 << false;
    QTest::newRow("16 speakers are valid") << 1 << 0 << 16 << 0 << 0 << true;
    QTest::newRow("17 microphones are red") << 1 << 17 << 0 << 0 << 0 << false;
    QTest::newRow("8 controllers are valid") << 1 << 0 << 0 << 8 << 0 << true;
    QTest::newRow("9 controllers are red") << 1 << 0 << 0 << 9 << 0 << false;
    QTest::newRow("other models are not counted") << 1 << 16 << 0 << 8 << 20 << true;
}

void TestPageConfigure::limits()
{
    QFETCH(const int, hubs);
    QFETCH(const int, microphones);
    QFETCH(const int, speakers);
    QFETCH(const int, controllers);
    QFETCH(const int, others);
    QFETCH(const bool, valid);

    Step step;
    step.place("PX-HB", hubs, 1);
    step.place("PX-BK", microphones, 1);
    step.place("DSK4M", speakers, 1);
    step.place("PNB-QE7", controllers, 1);
    step.place("PX-ODD", others, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.canGoOn(), valid);
    QCOMPARE(step.isRed(0), !valid);
    QCOMPARE(step.isBlack(0), valid);
}

void TestPageConfigure::twoHubsAreRedAndNextIsDisabledUntilOneIsRemoved()
{
    Step step;
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
    Step step;
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
    Step step;
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

void TestPageConfigure::aDeviceHasItsOwnRemovedFlagInEverySetThatContainsItsRoom()
{
    Step step;
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2"), Qt::yellow);
    step.enter();
    press(step.button(2));
    QVERIFY(step.button(2)->isRemoved());
    selectGroup(step.page, 2);
    QVERIFY(!step.button(2)->isRemoved());
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.storedRemoval(1, 1, 2), std::optional(true));
    QCOMPARE(step.storedRemoval(3, 2, 2), std::optional(false));
    QCOMPARE(step.storedRemoval(2, 2, 2), std::nullopt);
}

void TestPageConfigure::revertingARemovedDeviceRestoresBlackTextsAndTheRemoveLabel()
{
    Step step;
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    QVERIFY(allTextsAre(step.row(1), Qt::gray));
    QCOMPARE(step.button(1)->accessibleName(), QStringLiteral("Revert dev-001"));
    press(step.button(1));
    QVERIFY(allTextsAre(step.row(1), Qt::black));
    QVERIFY(!step.button(1)->isRemoved());
    QCOMPARE(step.button(1)->accessibleName(), QStringLiteral("Remove dev-001"));
}

void TestPageConfigure::resetTakesBackEveryDeviceOfEverySet()
{
    Step step;
    step.place("PX-DL", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2"), Qt::yellow);
    // The second set is removed from, but not looked at, before Reset.
    addToDeviceSet(step.doc, 2, 2, address(2), true);
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
    Step step;
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, address(2), true);
    step.enter();
    QVERIFY(step.canGoOn());
    press(buttonOf(step.page, "resetButton"));
    QVERIFY(step.isRed(0));
    QVERIFY(!step.canGoOn());
}

void TestPageConfigure::theDocumentIsNotTouchedUntilNext()
{
    Step step;
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, address(1), true);
    step.enter();
    press(buttonOf(step.page, "resetButton"));
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(true));
}

void TestPageConfigure::nextStoresEveryDeviceOfEverySetRemovedOrNot()
{
    Step step;
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 9, 9, address(1), true);
    step.enter();
    press(step.button(2));
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(false));
    QCOMPARE(step.storedRemoval(1, 1, 2), std::optional(true));
    QCOMPARE(step.storedRemoval(9, 9, 1), std::nullopt);
}

void TestPageConfigure::theStoredOrderIsThatOfFillingWhateverTheTableShows()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("z"), QStringLiteral("PX-DL"), address(1), 2);
    addTestDevice(step.doc, QStringLiteral("y"), QStringLiteral("PX-DL"), address(2), 1);
    addTestDevice(step.doc, QStringLiteral("x"), QStringLiteral("PX-HB"), address(3), 1);
    addTestDevice(step.doc, QStringLiteral("w"), QStringLiteral("PX-DL"), address(4), 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    step.peripherals()->sortByColumn(addressColumn, Qt::DescendingOrder);
    press(buttonOf(step.page, "nextButton"));
    const QStringList filled{address(2), address(3), address(1), address(4)};
    QCOMPARE(storedAddresses(step.doc), filled);
}

void TestPageConfigure::setsThatWereNeverLookedAtAreStoredToo()
{
    Step step;
    step.place("PX-HB", 1, 1);
    step.place("PX-HB", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1/2"), Qt::cyan);
    addToDeviceSet(step.doc, 2, 1, address(2), true);
    step.enter();
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.storedRemoval(1, 1, 1), std::optional(false));
    QCOMPARE(step.storedRemoval(2, 1, 2), std::optional(true));
}

void TestPageConfigure::storingReturnsSpeakersToTheLeft()
{
    Step step;
    step.place("DSK4M", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, address(1), false);
    setSpeakerPosition(step.doc, 1, 1, address(1), QStringLiteral("R"));
    step.enter();
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(deviceSetRecord(step.doc, 1, 1, address(1))->speakerPosition, QStringLiteral("L"));
}

void TestPageConfigure::comingBackFromStep6KeepsTheSets()
{
    Step step;
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    step.page.enterFrom(6);
    QVERIFY(step.button(1)->isRemoved());
}

void TestPageConfigure::enteringFromStep4TakesEarlierRemovalsFromTheDocument()
{
    Step step;
    step.place("PX-DL", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    step.page.storeToDocument();
    press(step.button(2));
    step.page.enterFrom(4);
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(allTextsAre(step.row(1), Qt::gray));
    QVERIFY(!step.button(2)->isRemoved());
    QCOMPARE(step.counts(), QStringLiteral("0 1 0 0"));
    QCOMPARE(step.list->topLevelItemCount(), 1);
}

void TestPageConfigure::removalsFollowTheSetNumberWhenLayoutsChange()
{
    Step step;
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
    Step step;
    step.place("PX-HB", 2, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, address(1), true);
    step.page.restoreFromDocument();
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(step.canGoOn());
}

void TestPageConfigure::withoutLayoutsNextIsEnabled()
{
    Step step;
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

void TestPageConfigure::aDeviceHandedOverTwiceIsListedOnce()
{
    Step step;
    step.place("PX-HB", 1, 1);
    addTestDevice(step.doc, QStringLiteral("again"), QStringLiteral("PX-HB"), address(1), 1);
    addTestDevice(step.doc, QStringLiteral("other"), QStringLiteral("PX-DL"), address(2), 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.hubs()->topLevelItemCount(), 1);
    QVERIFY(step.canGoOn());
}

void TestPageConfigure::theIdentifyButtonMakesTheDeviceIdentifyItself()
{
    QTcpServer device;
    QVERIFY(device.listen(QHostAddress(address(1)), textCommandPort));
    Step step;
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.peripherals()->itemWidget(step.row(1), 1));
    QTRY_VERIFY(device.hasPendingConnections());
    QTcpSocket* connection = device.nextPendingConnection();
    QTRY_COMPARE(connection->bytesAvailable(), qsizetype(sizeof "identify 5"));
    QCOMPARE(connection->readAll(), QByteArray("identify 5\n"));
}

void TestPageConfigure::removingWorksWithTheKeyboard()
{
    Step step;
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QTest::keyClick(step.button(1), Qt::Key_Space);
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(allTextsAre(step.row(1), Qt::gray));
}

void TestPageConfigure::selectingARowShowsItsPanelAndPicture()
{
    Step step;
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
    Step step;
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
    Step step;
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

TESSEL_TEST_MAIN(TestPageConfigure)
#include "tst_pageconfigure.moc"
