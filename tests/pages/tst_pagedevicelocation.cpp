#include "devicelocation.h"
#include "devicelocationstep.h"
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "testcase.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

class TestPageDeviceLocation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nextSavesAndGoesOn();
    void backSavesAsWell();
    void resetUnassignsEveryDeviceInOneRecount();
    void resetReachesEveryRowOfTablesSortedByRoom();
    void isReloadedOnlyWhenReachedFromAnEarlierStep();
    void restoringLoadsAndSavingStores();
    void theTabKeyFollowsTheReadingOrder();
    void nothingIsClippedAtTheSmallestWindow();
    void doubleClickingAnUnassignedDeviceOpensNoDialog();
    void onlyTheLabelCellOfAnAssignedDeviceOpensTheDialog();
    void renamingWritesTheLabelToTheDocumentAndTheRow();
    void aRenamedRowIsInSightWhereverItsNamePutsIt();
    void aRowIsInSightWhereverItsRoomPutsIt();
    void aCancelledRenameChangesNothing();
    void thePencilRenamesItsDeviceAndShowsOnlyWhileAssigned();
};

namespace {

using Step = DeviceLocationStep;

bool isInSight(const DeviceTable* table, const QString& ip)
{
    const QRect row = table->visualItemRect(table->rowOf(ip));
    return row.top() >= 0 && row.bottom() <= table->viewport()->height();
}

} // namespace

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
    QCOMPARE(columnTexts(*step.peripherals, "Room"), QStringList(5, QStringLiteral("No Assign")));
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
    QCOMPARE(columnTexts(*step.peripherals, "Room").first(), QStringLiteral("1"));
    step.choose(firstAddress, 4);
    QCOMPARE(step.peripherals->rowOf(firstAddress)->text(RoomColumn), QStringLiteral("4"));
    press(buttonOf(step.page, "resetButton"));
    QCOMPARE(columnTexts(*step.peripherals, "Room"), QStringList(12, QStringLiteral("No Assign")));
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

void TestPageDeviceLocation::doubleClickingAnUnassignedDeviceOpensNoDialog()
{
    Step step;
    step.add(hubModel, 1, 0);
    step.enter();
    const DialogAnswerer nothingIsAsked;
    QSignalSpy doubleClicked(step.hubs, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)));
    step.doubleClick(step.hubs, firstAddress, LabelColumn);
    QCOMPARE(doubleClicked.size(), 1);
}

void TestPageDeviceLocation::onlyTheLabelCellOfAnAssignedDeviceOpensTheDialog()
{
    Step step;
    step.add(hubModel);
    step.enter();
    const DialogAnswerer answer("Change Name", pressing("Cancel"));
    QSignalSpy doubleClicked(step.hubs, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)));
    step.doubleClick(step.hubs, firstAddress, ModelColumn);
    step.doubleClick(step.hubs, firstAddress, AddressColumn);
    QCOMPARE(doubleClicked.size(), 2);
    QCOMPARE(answer.answered("Change Name"), 0);
    step.doubleClick(step.hubs, firstAddress, LabelColumn);
}

void TestPageDeviceLocation::renamingWritesTheLabelToTheDocumentAndTheRow()
{
    Step step;
    step.add(speakerModel, 2);
    step.enter();
    QString title;
    QString offered;
    const DialogAnswerer answer("Change Name", [&](QWidget* dialog) {
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
    QCOMPARE(step.peripherals->itemWidget(step.peripherals->rowOf(firstAddress), IdentifyColumn)
                 ->accessibleName(),
             QStringLiteral("Identify Stage-Left"));
    QVERIFY(step.doc.actions.isEmpty());
}

void TestPageDeviceLocation::aRenamedRowIsInSightWhereverItsNamePutsIt()
{
    Step step;
    step.add(speakerModel, 40);
    step.enter();
    const DialogAnswerer answer("Change Name", [](QWidget* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("zz"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    press(step.pencil(step.peripherals, firstAddress));
    QCOMPARE(columnTexts(*step.peripherals, "Hostname").last(), QStringLiteral("zz"));
    QVERIFY(isInSight(step.peripherals, firstAddress));
}

void TestPageDeviceLocation::aRowIsInSightWhereverItsRoomPutsIt()
{
    Step step(4);
    step.add(speakerModel, 40, 2);
    step.enter();
    step.peripherals->sortByColumn(RoomColumn, Qt::AscendingOrder);
    QCOMPARE(columnTexts(*step.peripherals, "IP Address").first(), firstAddress);
    QTest::keyClick(step.combo(firstAddress), Qt::Key_Down);
    QCOMPARE(columnTexts(*step.peripherals, "IP Address").last(), firstAddress);
    QVERIFY(isInSight(step.peripherals, firstAddress));
}

void TestPageDeviceLocation::aCancelledRenameChangesNothing()
{
    Step step;
    step.add(speakerModel);
    step.enter();
    const DialogAnswerer answer("Change Name", [](QWidget* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("x"));
        press(buttonOf(*dialog, "cancelButton"));
    });
    step.doubleClick(step.peripherals, firstAddress, LabelColumn);
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
    const DialogAnswerer answer("Change Name", [](QWidget* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("zz"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    press(pencil);
    QCOMPARE(deviceByAddress(step.doc, step.address(2))->label, QStringLiteral("zz"));
}

TESSEL_TEST_MAIN(TestPageDeviceLocation)
#include "tst_pagedevicelocation.moc"
