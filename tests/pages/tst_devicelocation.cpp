#include "devicelocation.h"
#include "devicelocationstep.h"
#include "devicequeries.h"
#include "roomqueries.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

class TestDeviceLocation : public TestCase
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
    void twoDevicesOfOneAddressAreTwoRows();
    void oneAddressListedTwiceIsOneDeviceInOneRoom();
    void oneAddressInBothTablesIsInOneRoom();
    void aCountBeyondItsLimitIsNotToldByColourAlone();
    void everyWidgetHasANameForScreenReaders();
    void identifyAsksTheDocument();
    void listsWithoutRowsSayWhatToCheck();
    void whereNobodySearchesListsWithoutRowsBlameNoSearch();
};

namespace {

using Step = DeviceLocationStep;

} // namespace

void TestDeviceLocation::saysWhatToAssignAndTheLimits()
{
    Step step;
    step.enter();
    QCOMPARE(step.page.title(), QStringLiteral("3. Assign Devices to the rooms"));
    QCOMPARE(step.page.pageNumber(), 3);
    const QStringList texts = labelTexts(step.page);
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

void TestDeviceLocation::showsTheRoomsAsDrawn()
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

void TestDeviceLocation::listsHubsApartFromPeripherals()
{
    Step step;
    step.add(hubModel);
    step.add(QStringLiteral("PX-HB2"));
    step.add(microphoneModel);
    step.add(QStringLiteral("PX-XY"));
    step.enter();
    QCOMPARE(columnTexts(*step.hubs, "Model"), strings({"PX-HB", "PX-HB2"}));
    QCOMPARE(columnTexts(*step.peripherals, "Model"), strings({"PX-DL", "PX-XY"}));
}

void TestDeviceLocation::showsWhatTheDocumentKnowsOfADevice()
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

void TestDeviceLocation::listsDevicesByHostnameFirst()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("c"), speakerModel, Step::address(1));
    addTestDevice(step.doc, QStringLiteral("a"), speakerModel, Step::address(3));
    addTestDevice(step.doc, QStringLiteral("b"), speakerModel, Step::address(2));
    step.enter();
    QCOMPARE(columnTexts(*step.peripherals, "Hostname"), strings({"a", "b", "c"}));
    QVERIFY(step.peripherals->isSortingEnabled());
    QVERIFY(step.hubs->isSortingEnabled());
}

void TestDeviceLocation::countsJudgeARoom_data()
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

void TestDeviceLocation::countsJudgeARoom()
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

void TestDeviceLocation::countsEveryModelInItsColumn()
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

void TestDeviceLocation::judgesEachRoomByItself()
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

void TestDeviceLocation::aStoredRoomThreeOfTwoShowsNoAssign()
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

void TestDeviceLocation::choosingARoomUpdatesTheRowAndTheSummary()
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

void TestDeviceLocation::aChangedRoomIsCountedOnce()
{
    Step step;
    step.add(hubModel, 20, 0);
    step.enter();
    QSignalSpy judged(step.page.findChild<DeviceLocation*>(), SIGNAL(nextButtonEnabled(bool)));
    step.choose(step.address(7), 1);
    QCOMPARE(judged.size(), 1);
    QCOMPARE(judged.takeFirst().at(0).toBool(), true);
}

void TestDeviceLocation::theWheelScrollsAndAssignsNothing()
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

void TestDeviceLocation::twoDevicesOfOneAddressAreTwoRows()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("a"), speakerModel, firstAddress, 1);
    addTestDevice(step.doc, QStringLiteral("b"), speakerModel, firstAddress);
    step.enter();
    QCOMPARE(columnTexts(*step.peripherals, "Hostname"), strings({"a", "b"}));
    press(step.next);
    QCOMPARE(step.controller.nexts, 1);
}

void TestDeviceLocation::oneAddressListedTwiceIsOneDeviceInOneRoom()
{
    for (const int changed : {0, 1}) {
        Step step;
        addTestDevice(step.doc, QStringLiteral("a"), hubModel, firstAddress);
        addTestDevice(step.doc, QStringLiteral("b"), hubModel, firstAddress);
        step.enter();
        const QList<QComboBox*> combos = step.combos(firstAddress);
        QCOMPARE(combos.size(), 2);
        Step::choose(combos.at(changed), 2);
        QCOMPARE(combos.at(0)->currentIndex(), 2);
        QCOMPARE(combos.at(1)->currentIndex(), 2);
        QCOMPARE(columnTexts(*step.hubs, "Room"), strings({"2", "2"}));
        QCOMPARE(step.summaryRow(2), strings({"2", "1", "0", "0", "0"}));
        press(step.next);
        QCOMPARE(step.storedRoom(firstAddress), 2);
        step.enter();
        QCOMPARE(step.summaryRow(2), strings({"2", "1", "0", "0", "0"}));
    }
}

void TestDeviceLocation::oneAddressInBothTablesIsInOneRoom()
{
    Step step;
    addTestDevice(step.doc, QStringLiteral("a"), hubModel, firstAddress, 1);
    addTestDevice(step.doc, QStringLiteral("b"), speakerModel, firstAddress);
    step.enter();
    QCOMPARE(columnTexts(*step.peripherals, "Room"), strings({"1"}));
    press(step.next);
    QCOMPARE(step.storedRoom(firstAddress), 1);
}

void TestDeviceLocation::aCountBeyondItsLimitIsNotToldByColourAlone()
{
    Step step;
    step.add(hubModel, 2, 1);
    step.enter();
    const auto told = [&step](int column) {
        return step.summary->topLevelItem(0)->data(column, Qt::AccessibleDescriptionRole);
    };
    QCOMPARE(told(1).toString(), QStringLiteral("2 PX-HBs; 1 is possible"));
    QCOMPARE(step.summary->topLevelItem(0)->toolTip(1), told(1).toString());
    QVERIFY(told(2).toString().isEmpty());
    step.choose(firstAddress, 2);
    QVERIFY(told(1).toString().isEmpty());
}

void TestDeviceLocation::everyWidgetHasANameForScreenReaders()
{
    Step step;
    step.add(hubModel);
    step.enter();
    QCOMPARE(step.combo(firstAddress)->accessibleName(), QStringLiteral("Room of dev-001"));
    // On some platforms screen readers hear the chosen text in place of the name.
    QVERIFY(step.combo(firstAddress)->accessibleDescription().startsWith(u"Room of dev-001"));
    QCOMPARE(step.pencil(step.hubs, firstAddress)->accessibleName(),
             QStringLiteral("Change name of dev-001"));
    const QList<QWidget*> named{step.hubs, step.peripherals, step.summary, step.picture,
                                step.hubs->itemWidget(step.hubs->topLevelItem(0), IdentifyColumn)};
    for (const QWidget* widget : named) {
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
}

void TestDeviceLocation::listsWithoutRowsSayWhatToCheck()
{
    Step step;
    step.enter();
    const QString nothing = step.hubs->accessibleDescription();
    QVERIFY2(nothing.startsWith(QStringLiteral("No device has answered yet")), qPrintable(nothing));
    for (const char* cause : {"power", "cable", "same network", "firewall", "UDP port 54330"}) {
        QVERIFY2(nothing.contains(QLatin1String(cause)), cause);
    }
    QCOMPARE(step.peripherals->accessibleDescription(), nothing);
    const QRect space = step.hubs->viewport()->rect().adjusted(16, 0, -16, 0);
    const QRect lines =
        step.hubs->fontMetrics().boundingRect(space, Qt::AlignCenter | Qt::TextWordWrap, nothing);
    QVERIFY2(space.contains(lines), "the whole text is seen in the smallest window");
    step.add(microphoneModel);
    step.enter();
    QVERIFY(step.hubs->accessibleDescription().contains(QStringLiteral("no PX-HB yet")));
    QCOMPARE(step.peripherals->accessibleDescription(), QString());
}

void TestDeviceLocation::whereNobodySearchesListsWithoutRowsBlameNoSearch()
{
    Step step;
    step.doc.isNicHandedOver = true;
    step.enter();
    QVERIFY(step.next->accessibleDescription().startsWith(u"No device was handed over"));
    step.add(microphoneModel);
    step.enter();
    QCOMPARE(step.peripherals->accessibleDescription(), QString());
    const QString nothing = step.hubs->accessibleDescription();
    QVERIFY2(nothing.startsWith(u"No PX-HB was handed over"), qPrintable(nothing));
    for (const char* cause : {"-N:", "-D:", "does not search"}) {
        QVERIFY2(nothing.contains(QLatin1String(cause)), cause);
    }
    for (const char* untrue : {"cable", "firewall", "answered"}) {
        QVERIFY2(!nothing.contains(QLatin1String(untrue)), untrue);
    }
    const QRect space = step.hubs->viewport()->rect().adjusted(16, 0, -16, 0);
    const QRect lines =
        step.hubs->fontMetrics().boundingRect(space, Qt::AlignCenter | Qt::TextWordWrap, nothing);
    QVERIFY2(space.contains(lines), "the whole text is seen in the smallest window");
}

void TestDeviceLocation::identifyAsksTheDocument()
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

TESSEL_TEST_MAIN(TestDeviceLocation)
#include "tst_devicelocation.moc"
