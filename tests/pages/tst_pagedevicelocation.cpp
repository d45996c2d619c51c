#include "devicelocation.h"
#include "devicequeries.h"
#include "devicetable.h"
#include "fakecontroller.h"
#include "identifybutton.h"
#include "modalanswer.h"
#include "pagedevicelocation.h"
#include "pagefixtures.h"
#include "roomeditor.h"
#include "roomqueries.h"
#include "svgbutton.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

class TestPageDeviceLocation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToAssignAndTheLimits();
    void showsTheRoomsAsDrawn();
    void listsHubsApartFromPeripherals();
    void showsWhatTheDocumentKnowsOfADevice();
    void listsDevicesByHostnameFirst();
    void countsJudgeARoom_data();
    void countsJudgeARoom();
    void countsEveryModelInItsColumn();
    void judgesEachRoomByItself();
    void aStoredRoomThreeOfTwoShowsNoAssign();
    void choosingARoomUpdatesTheRowAndTheSummary();
    void aChangedRoomIsCountedOnce();
    void theWheelScrollsAndAssignsNothing();
    void doubleClickingAnUnassignedDeviceOpensNoDialog();
    void onlyTheLabelCellOfAnAssignedDeviceOpensTheDialog();
    void renamingWritesTheLabelToTheDocumentAndTheRow();
    void aCancelledRenameChangesNothing();
    void thePencilRenamesItsDeviceAndShowsOnlyWhileAssigned();
    void identifyAsksTheDocument();
    void nextSavesAndGoesOn();
    void backSavesAsWell();
    void resetUnassignsEveryDeviceInOneRecount();
    void resetReachesEveryRowOfTablesSortedByRoom();
    void isReloadedOnlyWhenReachedFromAnEarlierStep();
    void restoringLoadsAndSavingStores();
    void twoDevicesOfOneAddressAreTwoRows();
    void everyWidgetHasANameForScreenReaders();
    void theTabKeyFollowsTheReadingOrder();
    void nothingIsClippedAtTheSmallestWindow();
};

namespace {

enum Column
{
    LabelColumn,
    IdentifyColumn,
    ModelColumn,
    AddressColumn,
    RoomColumn
};

/// A document that notes which devices were asked to show themselves instead of asking them.
class QuietDoc : public TesselDoc
{
public:
    QuietDoc()
        : TesselDoc(nullptr)
    {
    }

    bool doAction(int kind, const QVariantMap& data) override
    {
        actions.append({kind, data});
        return true;
    }

    QList<std::pair<int, QVariantMap>> actions;
};

struct Step
{
    explicit Step(int rooms = 2) { drawRooms(doc, rooms); }

    void enter(int from = 2)
    {
        page.enterFrom(from);
        // The widgets of earlier rows go with the event loop's next turn.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        page.resize(780, 540);
        page.show();
    }

    /// Adds `count` devices of a model, in `room`.
    void add(const QString& model, int count = 1, int room = 1)
    {
        for (int i = 0; i < count; ++i) {
            ++devices;
            addTestDevice(doc, QStringLiteral("dev-%1").arg(devices, 3, 10, QLatin1Char('0')),
                          model, address(devices), room);
        }
    }

    static QString address(int device) { return QStringLiteral("10.0.0.%1").arg(device); }

    QComboBox* combo(const QString& ip) const
    {
        return page.findChild<QComboBox*>(QStringLiteral("roomCombo_") + ip);
    }

    /// Chooses a room as the keyboard does it: Home, then down to it.
    void choose(const QString& ip, int room) const
    {
        QComboBox* box = combo(ip);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < room; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
    }

    /// Double-clicks a cell where a user would: on whatever widget lies over its middle.
    void doubleClick(DeviceTable* table, const QString& ip, int column) const
    {
        const QTreeWidgetItem* row = table->rowOf(ip);
        const QPoint position(table->columnViewportPosition(column) +
                                  table->columnWidth(column) / 2,
                              table->visualItemRect(row).center().y());
        QWidget* target = table->viewport()->childAt(position);
        if (!target) {
            target = table->viewport();
        }
        const QPoint inTarget = target->mapFrom(table->viewport(), position);
        QTest::mouseClick(target, Qt::LeftButton, {}, inTarget);
        QTest::mouseDClick(target, Qt::LeftButton, {}, inTarget);
    }

    SvgButton* pencil(DeviceTable* table, const QString& ip) const
    {
        return table->itemWidget(table->rowOf(ip), LabelColumn)->findChild<SvgButton*>();
    }

    QStringList summaryRow(int room) const
    {
        QStringList texts;
        for (int column = 0; column < 5; ++column) {
            texts.append(summary->topLevelItem(room - 1)->text(column));
        }
        return texts;
    }

    QList<int> redColumns(int room) const
    {
        QList<int> columns;
        for (int column = 0; column < summary->columnCount(); ++column) {
            const QBrush brush = summary->topLevelItem(room - 1)->foreground(column);
            if (brush.color() == QColor(Qt::red)) {
                columns.append(column);
            }
        }
        return columns;
    }

    int storedRoom(const QString& ip) { return deviceByAddress(doc, ip)->roomNumber; }

    QuietDoc doc;
    FakeController controller;
    PageDeviceLocation page{&controller, &doc, nullptr};
    DeviceTable* hubs = page.findChild<DeviceTable*>(QStringLiteral("hubTable"));
    DeviceTable* peripherals = page.findChild<DeviceTable*>(QStringLiteral("peripheralTable"));
    QTreeWidget* summary = page.findChild<QTreeWidget*>(QStringLiteral("summaryTable"));
    RoomEditor* picture = page.findChild<RoomEditor*>(QStringLiteral("roomPicture"));
    QPushButton* next = buttonOf(page, "nextButton");
    int devices = 0;
};

QStringList columnTexts(const QTreeWidget* table, int column)
{
    QStringList texts;
    for (int row = 0; row < table->topLevelItemCount(); ++row) {
        texts.append(table->topLevelItem(row)->text(column));
    }
    return texts;
}

QStringList strings(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

const QString hubModel = QStringLiteral("PX-HB");
const QString microphoneModel = QStringLiteral("PX-DL");
const QString speakerModel = QStringLiteral("LQA4-08S");
const QString controllerModel = QStringLiteral("PNB-QE7");
const QString firstAddress = Step::address(1);

} // namespace

void TestPageDeviceLocation::saysWhatToAssignAndTheLimits()
{
    Step step;
    step.enter();
    QCOMPARE(step.page.title(), QStringLiteral("3. Assign Devices to the rooms"));
    QCOMPARE(step.page.pageNumber(), 3);
    QStringList texts;
    for (const QLabel* label : step.page.findChildren<QLabel*>()) {
        texts.append(label->text());
    }
    const QStringList expected{
        QStringLiteral("Specify the room in which each device found on the network is located."),
        QStringLiteral("In each room you can have a maximum of one PX-HB, up to 16 microphones, "
                       "and up to 15 speakers."),
        QStringLiteral("The total number of microphones and speakers combined cannot exceed 16."),
        QStringLiteral("PX-HB"), QStringLiteral("Peripheral")};
    QCOMPARE(texts, expected);
    const QStringList headers = strings({"Hostname", "", "Model", "IP Address", "Room", ""});
    const QStringList summaryHeaders =
        strings({"Room", "PX-HB", "Microphone", "Speaker", "Controller", ""});
    for (int column = 0; column < 6; ++column) {
        QCOMPARE(step.hubs->headerItem()->text(column), headers.at(column));
        QCOMPARE(step.peripherals->headerItem()->text(column), headers.at(column));
        QCOMPARE(step.summary->headerItem()->text(column), summaryHeaders.at(column));
    }
    QCOMPARE(step.hubs->columnWidth(LabelColumn), 250);
    QCOMPARE(step.summary->columnWidth(0), 50);
}

void TestPageDeviceLocation::showsTheRoomsAsDrawn()
{
    Step step(3);
    step.enter();
    for (int room = 1; room <= 3; ++room) {
        QCOMPARE(step.picture->cellsOf(room), roomCells(step.doc, room).value());
        QCOMPARE(step.summary->topLevelItem(room - 1)->text(0), QString::number(room));
        QCOMPARE(step.summary->topLevelItem(room - 1)->foreground(0).color(), QColor(Qt::white));
    }
    QCOMPARE(step.summary->topLevelItem(0)->background(0).color(), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(step.summary->topLevelItemCount(), 3);
    QTest::mouseClick(step.picture, Qt::LeftButton, {}, QPoint(8, 8));
    QCOMPARE(step.picture->cellsOf(1).size(), 16);
}

void TestPageDeviceLocation::listsHubsApartFromPeripherals()
{
    Step step;
    step.add(hubModel);
    step.add(QStringLiteral("PX-HB2"));
    step.add(microphoneModel);
    step.add(QStringLiteral("PX-XY"));
    step.enter();
    QCOMPARE(columnTexts(step.hubs, ModelColumn), strings({"PX-HB", "PX-HB2"}));
    QCOMPARE(columnTexts(step.peripherals, ModelColumn), strings({"PX-DL", "PX-XY"}));
}

void TestPageDeviceLocation::showsWhatTheDocumentKnowsOfADevice()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("Hall-East"), hubModel, firstAddress, 2);
    step.enter();
    const QTreeWidgetItem* row = step.hubs->rowOf(firstAddress);
    QCOMPARE(row->text(LabelColumn), QStringLiteral("Hall-East"));
    QCOMPARE(row->text(ModelColumn), hubModel);
    QCOMPARE(row->text(AddressColumn), firstAddress);
    QCOMPARE(row->text(RoomColumn), QStringLiteral("2"));
    const QComboBox* combo = step.combo(firstAddress);
    QStringList choices;
    for (int i = 0; i < combo->count(); ++i) {
        choices.append(combo->itemText(i));
    }
    QCOMPARE(choices, strings({"No Assign", "1", "2"}));
    QCOMPARE(combo->currentIndex(), 2);
}

void TestPageDeviceLocation::listsDevicesByHostnameFirst()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("c"), speakerModel, Step::address(1));
    addTestDevice(step.doc, QStringLiteral("a"), speakerModel, Step::address(3));
    addTestDevice(step.doc, QStringLiteral("b"), speakerModel, Step::address(2));
    step.enter();
    QCOMPARE(columnTexts(step.peripherals, LabelColumn), strings({"a", "b", "c"}));
    QVERIFY(step.peripherals->isSortingEnabled());
    QVERIFY(step.hubs->isSortingEnabled());
}

void TestPageDeviceLocation::countsJudgeARoom_data()
{
    QTest::addColumn<int>("hubs");
    QTest::addColumn<int>("microphones");
    QTest::addColumn<int>("speakers");
    QTest::addColumn<int>("controllers");
    QTest::addColumn<QList<int>>("red");
    QTest::addColumn<bool>("next");

    QTest::newRow("two hubs: red") << 2 << 0 << 0 << 0 << QList<int>{1} << false;
    QTest::newRow("10 microphones and 7 speakers: both red")
        << 1 << 10 << 7 << 0 << QList<int>{2, 3} << false;
    QTest::newRow("10 microphones and 6 speakers: valid")
        << 1 << 10 << 6 << 0 << QList<int>{} << true;
    QTest::newRow("16 microphones and no speakers: valid")
        << 0 << 16 << 0 << 0 << QList<int>{} << true;
    // More than 16 microphones are always more than 16 together with the speakers.
    QTest::newRow("17 microphones: red") << 0 << 17 << 0 << 0 << QList<int>{2, 3} << false;
    QTest::newRow("15 speakers: valid") << 0 << 0 << 15 << 0 << QList<int>{} << true;
    QTest::newRow("16 speakers: red") << 0 << 0 << 16 << 0 << QList<int>{3} << false;
    QTest::newRow("8 controllers: valid") << 0 << 0 << 0 << 8 << QList<int>{} << true;
    QTest::newRow("9 controllers: red") << 0 << 0 << 0 << 9 << QList<int>{4} << false;
    QTest::newRow("one hub alone: valid") << 1 << 0 << 0 << 0 << QList<int>{} << true;
    QTest::newRow("no device assigned: nothing red, not valid")
        << 0 << 0 << 0 << 0 << QList<int>{} << false;
}

void TestPageDeviceLocation::countsJudgeARoom()
{
    QFETCH(int, hubs);
    QFETCH(int, microphones);
    QFETCH(int, speakers);
    QFETCH(int, controllers);
    Step step;
    step.add(hubModel, hubs);
    step.add(microphoneModel, microphones);
    step.add(speakerModel, speakers);
    step.add(controllerModel, controllers);
    step.add(hubModel, 2, 0);
    step.enter();
    const QStringList expected{QStringLiteral("1"), QString::number(hubs),
                               QString::number(microphones), QString::number(speakers),
                               QString::number(controllers)};
    QCOMPARE(step.summaryRow(1), expected);
    QTEST(step.redColumns(1), "red");
    QTEST(step.next->isEnabled(), "next");
}

void TestPageDeviceLocation::countsEveryModelInItsColumn()
{
    Step step;
    step.add(QStringLiteral("PX-DL5"));
    step.add(QStringLiteral("PX-BK"));
    step.add(QStringLiteral("PX-NDE4"));
    step.add(QStringLiteral("LQA4-08S"));
    step.add(QStringLiteral("DSK4M"));
    step.add(controllerModel);
    step.add(QStringLiteral("PX-HB-L"));
    step.add(QStringLiteral("PX-XY"), 1, 2);
    step.enter();
    QCOMPARE(step.summaryRow(1), strings({"1", "1", "3", "2", "1"}));
    QCOMPARE(step.summaryRow(2), strings({"2", "0", "0", "0", "0"}));

    Step alone;
    alone.add(QStringLiteral("PX-XY"));
    alone.enter();
    QCOMPARE(alone.summaryRow(1), strings({"1", "0", "0", "0", "0"}));
    QVERIFY(!alone.next->isEnabled());
}

void TestPageDeviceLocation::judgesEachRoomByItself()
{
    Step step(3);
    step.add(hubModel, 1, 1);
    step.add(hubModel, 1, 2);
    step.add(microphoneModel, 16, 2);
    step.add(speakerModel, 1, 3);
    step.enter();
    QVERIFY(step.next->isEnabled());
    step.choose(step.address(19), 2);
    QCOMPARE(step.redColumns(1), QList<int>());
    QCOMPARE(step.redColumns(2), QList<int>({2, 3}));
    QVERIFY(!step.next->isEnabled());
}

void TestPageDeviceLocation::aStoredRoomThreeOfTwoShowsNoAssign()
{
    Step step;
    step.add(hubModel, 1, 3);
    step.enter();
    QCOMPARE(step.combo(firstAddress)->currentText(), QStringLiteral("No Assign"));
    QCOMPARE(step.hubs->rowOf(firstAddress)->text(RoomColumn), QStringLiteral("No Assign"));
    QVERIFY(!step.pencil(step.hubs, firstAddress)->isVisible());
    QVERIFY(!step.next->isEnabled());
    step.page.storeToDocument();
    QCOMPARE(step.storedRoom(firstAddress), 0);
}

void TestPageDeviceLocation::choosingARoomUpdatesTheRowAndTheSummary()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.enter();
    QVERIFY(!step.next->isEnabled());
    step.choose(firstAddress, 2);
    QCOMPARE(step.hubs->rowOf(firstAddress)->text(RoomColumn), QStringLiteral("2"));
    QVERIFY(step.pencil(step.hubs, firstAddress)->isVisible());
    QCOMPARE(step.summaryRow(2), strings({"2", "1", "0", "0", "0"}));
    QVERIFY(step.next->isEnabled());
    QCOMPARE(step.storedRoom(firstAddress), 0);

    step.choose(firstAddress, 0);
    QCOMPARE(step.hubs->rowOf(firstAddress)->text(RoomColumn), QStringLiteral("No Assign"));
    QVERIFY(!step.pencil(step.hubs, firstAddress)->isVisible());
    QVERIFY(!step.next->isEnabled());
}

void TestPageDeviceLocation::aChangedRoomIsCountedOnce()
{
    Step step;
    step.add(hubModel, 20, 0);
    step.enter();
    QSignalSpy judged(step.page.findChild<DeviceLocation*>(), SIGNAL(nextButtonEnabled(bool)));
    step.choose(step.address(7), 1);
    QCOMPARE(judged.size(), 1);
    QCOMPARE(judged.takeFirst().at(0).toBool(), true);
}

void TestPageDeviceLocation::theWheelScrollsAndAssignsNothing()
{
    Step step;
    step.add(speakerModel, 40, 0);
    step.enter();
    QComboBox* combo = step.combo(firstAddress);
    combo->setFocus();
    const QPointF position = combo->rect().center();
    QWheelEvent event(position, combo->mapToGlobal(position), QPoint(0, -60), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &event);
    QCOMPARE(combo->currentIndex(), 0);
}

void TestPageDeviceLocation::doubleClickingAnUnassignedDeviceOpensNoDialog()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.enter();
    ModalAnswer answer(QStringLiteral("Cancel"));
    QSignalSpy doubleClicked(step.hubs, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)));
    step.doubleClick(step.hubs, firstAddress, LabelColumn);
    QCOMPARE(doubleClicked.size(), 1);
    QVERIFY(!answer.wasShown());
}

void TestPageDeviceLocation::onlyTheLabelCellOfAnAssignedDeviceOpensTheDialog()
{
    Step step;
    step.add(hubModel);
    step.enter();
    ModalAnswer answer(QStringLiteral("Cancel"));
    QSignalSpy doubleClicked(step.hubs, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)));
    step.doubleClick(step.hubs, firstAddress, ModelColumn);
    step.doubleClick(step.hubs, firstAddress, AddressColumn);
    QCOMPARE(doubleClicked.size(), 2);
    QVERIFY(!answer.wasShown());
    step.doubleClick(step.hubs, firstAddress, LabelColumn);
    QVERIFY(answer.wasShown());
}

void TestPageDeviceLocation::renamingWritesTheLabelToTheDocumentAndTheRow()
{
    Step step;
    step.add(speakerModel, 2);
    step.enter();
    QString title;
    QString offered;
    ModalAnswer answer([&](QWidget* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("nameEdit"));
        title = dialog->windowTitle();
        offered = edit->text();
        QTest::keyClicks(edit, QStringLiteral("Stage-Left"));
        press(buttonOf(*dialog, "okButton"));
    });
    step.doubleClick(step.peripherals, firstAddress, LabelColumn);
    QCOMPARE(title, QStringLiteral("Change Name"));
    QCOMPARE(offered, QStringLiteral("dev-001"));
    QCOMPARE(deviceByAddress(step.doc, firstAddress)->label, QStringLiteral("Stage-Left"));
    QCOMPARE(step.peripherals->rowOf(firstAddress)->text(LabelColumn),
             QStringLiteral("Stage-Left"));
    QCOMPARE(deviceByAddress(step.doc, step.address(2))->label, QStringLiteral("dev-002"));
    QCOMPARE(step.combo(firstAddress)->accessibleName(), QStringLiteral("Room of Stage-Left"));
    QVERIFY(step.doc.actions.isEmpty());
}

void TestPageDeviceLocation::aCancelledRenameChangesNothing()
{
    Step step;
    step.add(speakerModel);
    step.enter();
    ModalAnswer answer([](QWidget* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("x"));
        press(buttonOf(*dialog, "cancelButton"));
    });
    step.doubleClick(step.peripherals, firstAddress, LabelColumn);
    QVERIFY(answer.wasShown());
    QCOMPARE(deviceByAddress(step.doc, firstAddress)->label, QStringLiteral("dev-001"));
    QCOMPARE(step.peripherals->rowOf(firstAddress)->text(LabelColumn), QStringLiteral("dev-001"));
}

void TestPageDeviceLocation::thePencilRenamesItsDeviceAndShowsOnlyWhileAssigned()
{
    Step step;
    step.add(speakerModel, 2);
    step.add(speakerModel, 1, 0);
    step.enter();
    QVERIFY(!step.pencil(step.peripherals, step.address(3))->isVisible());
    SvgButton* pencil = step.pencil(step.peripherals, step.address(2));
    QVERIFY(pencil->isVisible());
    ModalAnswer answer([](QWidget* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("zz"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    press(pencil);
    QCOMPARE(deviceByAddress(step.doc, step.address(2))->label, QStringLiteral("zz"));
}

void TestPageDeviceLocation::identifyAsksTheDocument()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.add(speakerModel, 1, 0);
    step.enter();
    press(step.hubs->itemWidget(step.hubs->rowOf(firstAddress), IdentifyColumn));
    press(step.peripherals->itemWidget(step.peripherals->rowOf(step.address(2)), IdentifyColumn));
    QCOMPARE(step.doc.actions.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(step.doc.actions.at(i).first, 16);
        QCOMPARE(step.doc.actions.at(i).second,
                 QVariantMap(
                     {{QStringLiteral("DataType:DeviceIPAddress=QString"), step.address(i + 1)}}));
    }
}

void TestPageDeviceLocation::nextSavesAndGoesOn()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.add(speakerModel, 1, 2);
    step.enter();
    step.choose(step.address(1), 1);
    step.choose(step.address(2), 0);
    press(step.next);
    QCOMPARE(step.controller.nexts, 1);
    QCOMPARE(step.storedRoom(step.address(1)), 1);
    QCOMPARE(step.storedRoom(step.address(2)), 0);
}

void TestPageDeviceLocation::backSavesAsWell()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.enter();
    step.choose(firstAddress, 2);
    press(buttonOf(step.page, "backButton"));
    QCOMPARE(step.controller.backs, 1);
    QCOMPARE(step.storedRoom(firstAddress), 2);
    step.enter(2);
    QCOMPARE(step.combo(firstAddress)->currentIndex(), 2);
}

void TestPageDeviceLocation::resetUnassignsEveryDeviceInOneRecount()
{
    Step step;
    step.add(hubModel, 1, 1);
    step.add(speakerModel, 5, 2);
    step.enter();
    QSignalSpy judged(step.page.findChild<DeviceLocation*>(), SIGNAL(nextButtonEnabled(bool)));
    press(buttonOf(step.page, "resetButton"));
    QCOMPARE(judged.size(), 1);
    for (int device = 1; device <= 6; ++device) {
        QCOMPARE(step.combo(step.address(device))->currentIndex(), 0);
        QCOMPARE(step.storedRoom(step.address(device)), device == 1 ? 1 : 2);
    }
    QCOMPARE(columnTexts(step.peripherals, RoomColumn),
             QStringList(5, QStringLiteral("No Assign")));
    QVERIFY(!step.pencil(step.hubs, firstAddress)->isVisible());
    QCOMPARE(step.summaryRow(2), strings({"2", "0", "0", "0", "0"}));
    QVERIFY(!step.next->isEnabled());
}

void TestPageDeviceLocation::resetReachesEveryRowOfTablesSortedByRoom()
{
    Step step(4);
    for (int device = 0; device < 12; ++device) {
        step.add(speakerModel, 1, device % 5);
    }
    step.enter();
    step.peripherals->sortByColumn(RoomColumn, Qt::AscendingOrder);
    QCOMPARE(columnTexts(step.peripherals, RoomColumn).first(), QStringLiteral("1"));
    step.choose(firstAddress, 4);
    QCOMPARE(step.peripherals->rowOf(firstAddress)->text(RoomColumn), QStringLiteral("4"));
    press(buttonOf(step.page, "resetButton"));
    QCOMPARE(columnTexts(step.peripherals, RoomColumn),
             QStringList(12, QStringLiteral("No Assign")));
    QVERIFY(step.peripherals->isSortingEnabled());
    QCOMPARE(step.peripherals->header()->sortIndicatorSection(), int(RoomColumn));
}

void TestPageDeviceLocation::isReloadedOnlyWhenReachedFromAnEarlierStep()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.enter();
    step.choose(firstAddress, 1);
    step.add(hubModel, 1, 0);
    step.enter(4);
    QCOMPARE(step.hubs->topLevelItemCount(), 1);
    QCOMPARE(step.combo(firstAddress)->currentIndex(), 1);
    step.enter(1);
    QCOMPARE(step.hubs->topLevelItemCount(), 2);
    QCOMPARE(step.combo(firstAddress)->currentIndex(), 0);
}

void TestPageDeviceLocation::restoringLoadsAndSavingStores()
{
    Step step;
    step.add(hubModel, 1, 2);
    step.page.restoreFromDocument();
    QCOMPARE(step.combo(firstAddress)->currentIndex(), 2);
    QVERIFY(step.next->isEnabled());
    step.combo(firstAddress)->setCurrentIndex(1);
    step.page.storeToDocument();
    QCOMPARE(step.storedRoom(firstAddress), 1);
    QCOMPARE(step.controller.nexts + step.controller.backs, 0);
}

void TestPageDeviceLocation::twoDevicesOfOneAddressAreTwoRows()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("a"), speakerModel, firstAddress, 1);
    addTestDevice(step.doc, QStringLiteral("b"), speakerModel, firstAddress);
    step.enter();
    QCOMPARE(columnTexts(step.peripherals, LabelColumn), strings({"a", "b"}));
    press(step.next);
    QCOMPARE(step.controller.nexts, 1);
}

void TestPageDeviceLocation::everyWidgetHasANameForScreenReaders()
{
    Step step;
    step.add(hubModel);
    step.enter();
    QCOMPARE(step.combo(firstAddress)->accessibleName(), QStringLiteral("Room of dev-001"));
    QCOMPARE(step.pencil(step.hubs, firstAddress)->accessibleName(),
             QStringLiteral("Change name of dev-001"));
    const QList<QWidget*> named{step.hubs, step.peripherals, step.summary, step.picture,
                                step.hubs->itemWidget(step.hubs->topLevelItem(0), IdentifyColumn)};
    for (const QWidget* widget : named) {
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
}

void TestPageDeviceLocation::theTabKeyFollowsTheReadingOrder()
{
    Step step;
    step.add(hubModel);
    step.add(speakerModel);
    step.enter();
    QCOMPARE(
        tabOrder(step.page),
        strings({"summaryTable", "hubTable", "editIcon", "roomCombo_10.0.0.1", "peripheralTable",
                 "editIcon", "roomCombo_10.0.0.2", "backButton", "resetButton", "nextButton"}));
}

void TestPageDeviceLocation::nothingIsClippedAtTheSmallestWindow()
{
    Step step(4);
    step.add(hubModel, 4);
    step.add(speakerModel, 20);
    step.enter();
    QVERIFY(step.page.minimumSizeHint().height() <= 540);
    QVERIFY(step.page.minimumSizeHint().width() <= 780);
    const QTreeWidgetItem* lastRoom = step.summary->topLevelItem(3);
    QVERIFY(step.summary->viewport()->rect().contains(step.summary->visualItemRect(lastRoom)));
    const QComboBox* combo = step.combo(step.address(9));
    QVERIFY(combo->width() >= combo->minimumSizeHint().width());
}

TESSEL_TEST_MAIN(TestPageDeviceLocation)
#include "tst_pagedevicelocation.moc"
