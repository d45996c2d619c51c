#include "devicelocationstep.h"
#include "testcase.h"

#include <QApplication>
#include <QTest>

namespace {

using Step = DeviceLocationStep;

void activate(QWidget& page)
{
    page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page));
}

/// The page with peripherals in a table that the keyboard is in.
struct Peripherals : Step
{
    explicit Peripherals(int count, int rooms = 4)
        : Step(rooms)
    {
        add(microphoneModel, count, 0);
        enter();
        activate(page);
        stand(0);
    }

    void stand(int row) const
    {
        peripherals->setFocus();
        peripherals->setCurrentItem(peripherals->topLevelItem(row));
    }

    int currentRow() const { return peripherals->currentIndex().row(); }
    int room(int device) const { return combo(address(device))->currentIndex(); }
};

void press(int room)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_0 + room), Qt::ControlModifier);
}

} // namespace

class TestRoomKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDigitChoosesTheRoomAndGoesOneRowDown();
    void inBothTables();
    void zeroTakesADeviceOutOfItsRoom();
    void aRoomThatThereIsNotIsNotChosen();
    void aChoiceByKeyIsJudgedLikeAnyOther();
    void theLastRowStaysCurrent();
    void theWayGoesOnWhereTheRowStoodBeforeItWasSortedAnew();
    void fromAWidgetOfARowTheFocusGoesAlong_data();
    void fromAWidgetOfARowTheFocusGoesAlong();
    void aKeyThatIsHeldCountsOnce();
    void theKeysOfTheNumberPadCountToo();
    void aDeviceListedTwiceIsInOneRoom();
    void anEmptyTableTakesTheKeysAndDoesNothing();
    void theComboTellsOfTheKeys();
};

void TestRoomKeys::aDigitChoosesTheRoomAndGoesOneRowDown()
{
    const Peripherals step(5);
    for (int device = 1; device <= 4; ++device) {
        press(device);
        QCOMPARE(step.room(device), device);
        QCOMPARE(step.peripherals->rowOf(Step::address(device))->text(RoomColumn),
                 QString::number(device));
        QCOMPARE(step.summaryRow(device).at(2), QStringLiteral("1"));
        QCOMPARE(step.currentRow(), device);
        QVERIFY(step.peripherals->topLevelItem(device)->isSelected());
    }
    QVERIFY(step.peripherals->hasFocus());
}

void TestRoomKeys::inBothTables()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.add(microphoneModel, 1, 0);
    step.enter();
    activate(step.page);
    for (QWidget* table : {step.hubs, step.peripherals}) {
        table->setFocus();
        press(2);
    }
    QCOMPARE(step.combo(Step::address(1))->currentIndex(), 2);
    QCOMPARE(step.combo(Step::address(2))->currentIndex(), 2);
}

void TestRoomKeys::zeroTakesADeviceOutOfItsRoom()
{
    const Peripherals step(2);
    press(3);
    step.stand(0);
    press(0);
    QCOMPARE(step.room(1), 0);
    QCOMPARE(step.currentRow(), 1);
    QVERIFY(!step.next->isEnabled());
}

void TestRoomKeys::aRoomThatThereIsNotIsNotChosen()
{
    const Peripherals step(2, 2);
    press(3);
    press(4);
    QCOMPARE(step.room(1), 0);
    QCOMPARE(step.currentRow(), 0);
    press(2);
    QCOMPARE(step.room(1), 2);
}

void TestRoomKeys::aChoiceByKeyIsJudgedLikeAnyOther()
{
    const Peripherals step(17);
    for (int device = 1; device <= 16; ++device) {
        press(1);
        QVERIFY(step.next->isEnabled());
    }
    press(1);
    QVERIFY(!step.next->isEnabled());
    QCOMPARE(step.redColumns(1), QList<int>({2, 3}));
}

void TestRoomKeys::theLastRowStaysCurrent()
{
    const Peripherals step(2);
    step.stand(1);
    press(1);
    QCOMPARE(step.currentRow(), 1);
    press(2);
    QCOMPARE(step.room(2), 2);
    QCOMPARE(step.room(1), 0);
}

void TestRoomKeys::theWayGoesOnWhereTheRowStoodBeforeItWasSortedAnew()
{
    const Peripherals step(3);
    step.peripherals->sortByColumn(RoomColumn, Qt::DescendingOrder);
    const auto labelAt = [&step](int row) {
        return step.peripherals->topLevelItem(row)->text(LabelColumn);
    };
    const QString next = labelAt(1);
    step.stand(0);
    press(1);
    QCOMPARE(labelAt(2), QStringLiteral("dev-001"));
    QCOMPARE(step.peripherals->currentItem()->text(LabelColumn), next);
}

void TestRoomKeys::fromAWidgetOfARowTheFocusGoesAlong_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("lamp") << int(IdentifyColumn);
    QTest::newRow("room") << int(RoomColumn);
}

void TestRoomKeys::fromAWidgetOfARowTheFocusGoesAlong()
{
    QFETCH(const int, column);
    const Peripherals step(3);
    const auto widgetAt = [&](int row) {
        return step.peripherals->itemWidget(step.peripherals->topLevelItem(row), column);
    };
    widgetAt(1)->setFocus(Qt::TabFocusReason);
    press(4);
    QCOMPARE(step.room(2), 4);
    QCOMPARE(step.currentRow(), 2);
    QCOMPARE(QApplication::focusWidget(), widgetAt(2));
}

void TestRoomKeys::aKeyThatIsHeldCountsOnce()
{
    const Peripherals step(5);
    for (const bool repeated : {false, true, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_1, Qt::ControlModifier, QString(), repeated);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
    }
    QCOMPARE(step.currentRow(), 1);
    QCOMPARE(step.room(1), 1);
}

void TestRoomKeys::theKeysOfTheNumberPadCountToo()
{
    const Peripherals step(2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_3,
                    Qt::ControlModifier | Qt::KeypadModifier);
    QCOMPARE(step.room(1), 3);
}

void TestRoomKeys::aDeviceListedTwiceIsInOneRoom()
{
    Step step;
    for (const char* label : {"one", "two"}) {
        addTestDevice(step.doc, QString::fromLatin1(label), microphoneModel, firstAddress, 0);
    }
    step.enter();
    activate(step.page);
    step.peripherals->setFocus();
    press(2);
    for (const QComboBox* combo : step.combos(firstAddress)) {
        QCOMPARE(combo->currentIndex(), 2);
    }
}

void TestRoomKeys::anEmptyTableTakesTheKeysAndDoesNothing()
{
    const Peripherals step(1);
    step.hubs->setFocus();
    press(1);
    QCOMPARE(step.room(1), 0);
}

void TestRoomKeys::theComboTellsOfTheKeys()
{
    const Peripherals step(1, 3);
    const QComboBox* combo = step.combo(firstAddress);
    QCOMPARE(combo->toolTip(),
             QStringLiteral("Ctrl+1 to Ctrl+3 choose the room, Ctrl+0 takes the device out of its "
                            "room; each goes on to the next device."));
    QCOMPARE(combo->accessibleDescription(),
             QStringLiteral("Room of dev-001. ") + combo->toolTip());
}

TESSEL_TEST_MAIN(TestRoomKeys)
#include "tst_roomkeys.moc"
