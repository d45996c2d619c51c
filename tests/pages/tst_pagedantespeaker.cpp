#include "fakecontroller.h"
#include "identifybutton.h"
#include "layoutqueries.h"
#include "pagedantespeaker.h"
#include "pagefixtures.h"
#include "setqueries.h"
#include "tablefixtures.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

class TestPageDanteSpeaker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToDo();
    void everyCombinedRoomHasARowInTheColourOfItsFirstRoom();
    void speakersOfAllItsRoomsAreListedByHostname();
    void aRemovedSpeakerIsMissingFromThatLayoutOnly();
    void devicesOfOtherModelsAreNotListed();
    void aSpeakerStandsOnTheLeftUnlessStoredOnTheRight();
    void nextStoresThePositionsOfEveryPanelAndGoesOn();
    void storingLeavesRemovedDevicesRemoved();
    void resetAffectsAllPagesNotOnlyTheVisibleOne();
    void backStoresNothing();
    void comingBackFromStep7KeepsTheChoices();
    void enteringFromStep5TakesThePositionsFromTheDocument();
    void savingTheWorkStoresThePositions();
    void restoringTakesThePositionsFromTheDocument();
    void selectingARowShowsItsPanelAndPicture();
    void theIdentifyButtonMakesTheSpeakerIdentifyItself();
    void theWheelNeverChangesAPosition();
    void withoutLayoutsNothingIsListedAndNothingBreaks();
    void combosSayWhosePositionTheyTell();
    void theCellSaysWhatItsComboShows();
    void tabGoesFromTheListThroughTheShownPanelToTheButtons();
};

namespace {

constexpr quint16 textCommandPort = 49280;
const char* const frontLeft = "127.51.1.1";
const char* const frontRight = "127.51.1.2";
const char* const rear = "127.51.1.3";

QString text(const char* address)
{
    return QString::fromLatin1(address);
}

void fillDocument(TesselDoc& doc)
{
    drawRooms(doc, 3);
    addTestDevice(doc, QStringLiteral("Front-L"), QStringLiteral("LQA4-08S"), text(frontLeft), 1);
    addTestDevice(doc, QStringLiteral("Front-R"), QStringLiteral("DSK4M"), text(frontRight), 2);
    addTestDevice(doc, QStringLiteral("A-Rear"), QStringLiteral("LQA4-08S"), text(rear), 2);
    addColouredLayout(doc, 1, QStringLiteral("1+2/3"), Qt::cyan);
    addColouredLayout(doc, 2, QStringLiteral("1/2/3"), Qt::yellow);
    for (const char* address : {frontLeft, frontRight, rear}) {
        addToDeviceSet(doc, 1, 1, text(address), false);
    }
    addToDeviceSet(doc, 3, 2, text(frontLeft), false);
    addToDeviceSet(doc, 4, 2, text(frontRight), false);
    addToDeviceSet(doc, 4, 2, text(rear), true);
}

struct Shown
{
    Shown()
    {
        fillDocument(doc);
        page.enterFrom(5);
        page.resize(780, 540);
        page.show();
    }

    QTreeWidget* table() const { return tableOf(*shownPanel(page), "speakerTable"); }

    QComboBox* combo(const char* address) const
    {
        QTreeWidgetItem* row = rowWith(*table(), "IP Address", text(address));
        return row ? qobject_cast<QComboBox*>(widgetIn(row, "Position")) : nullptr;
    }

    void choose(const char* address, Qt::Key key) const { QTest::keyClick(combo(address), key); }

    QString stored(int deviceSet, int scene, const char* address)
    {
        const auto record = deviceSetRecord(doc, deviceSet, scene, text(address));
        return record ? record->speakerPosition : QString();
    }

    TesselDoc doc{nullptr};
    FakeController controller;
    PageDanteSpeaker page{&controller, &doc, nullptr};
    QTreeWidget* list = tableOf(page, "roomGroupList");
};

} // namespace

void TestPageDanteSpeaker::saysWhatToDo()
{
    const Shown shown;
    QCOMPARE(shown.page.title(),
             QStringLiteral("6. Assign the speaker locations for each room combination"));
    QCOMPARE(shown.page.pageNumber(), 6);
    const QStringList texts = labelTexts(shown.page);
    QVERIFY(
        texts.contains(QStringLiteral("For each room combination listed on the left, select "
                                      "whether speakers are positioned on the left or right.")));
    QVERIFY(
        texts.contains(QStringLiteral("NOTE: For mono use only, choose Left for all speakers.")));
    QVERIFY(texts.contains(QStringLiteral("Speaker Position")));
    const QStringList headers{QStringLiteral("Hostname"), QString(),
                              QStringLiteral("Model"),    QStringLiteral("IP Address"),
                              QStringLiteral("Room"),     QStringLiteral("Position")};
    for (int column = 0; column < headers.size(); ++column) {
        QCOMPARE(shown.table()->headerItem()->text(column), headers.at(column));
    }
}

void TestPageDanteSpeaker::everyCombinedRoomHasARowInTheColourOfItsFirstRoom()
{
    const Shown shown;
    const QStringList rooms{QStringLiteral("1,2"), QStringLiteral("3"), QStringLiteral("1"),
                            QStringLiteral("2"), QStringLiteral("3")};
    QCOMPARE(columnTexts(*shown.list, "Room"), rooms);
    QCOMPARE(columnTexts(*shown.list, "No.").join(QString()), QStringLiteral("12345"));
    QCOMPARE(columnTexts(*shown.list, "Layout").join(QString()), QStringLiteral("11222"));
    QCOMPARE(shown.list->topLevelItem(0)->background(2).color(), QColor(0xB0, 0x68, 0x00));
    QCOMPARE(shown.list->topLevelItem(1)->background(2).color(), QColor(0x14, 0x5C, 0x97));
    QCOMPARE(shown.list->topLevelItem(0)->foreground(2).color(), QColor(Qt::white));
}

void TestPageDanteSpeaker::speakersOfAllItsRoomsAreListedByHostname()
{
    const Shown shown;
    const QStringList labels{QStringLiteral("A-Rear"), QStringLiteral("Front-L"),
                             QStringLiteral("Front-R")};
    QCOMPARE(columnTexts(*shown.table(), "Hostname"), labels);
    QCOMPARE(columnTexts(*shown.table(), "Room").join(QString()), QStringLiteral("212"));
    selectGroup(shown.page, 1);
    QCOMPARE(shown.table()->topLevelItemCount(), 0);
}

void TestPageDanteSpeaker::aRemovedSpeakerIsMissingFromThatLayoutOnly()
{
    const Shown shown;
    QVERIFY(shown.combo(rear));
    selectGroup(shown.page, 3);
    QCOMPARE(columnTexts(*shown.table(), "IP Address"), QStringList{text(frontRight)});
}

void TestPageDanteSpeaker::devicesOfOtherModelsAreNotListed()
{
    Shown shown;
    for (const char* model : {"PX-HB", "PX-DL", "PX-NDE", "PNB-QE7", "PX-LQA4-08S"}) {
        addTestDevice(shown.doc, text(model), text(model), text(model), 1);
    }
    shown.page.enterFrom(5);
    QCOMPARE(shown.table()->topLevelItemCount(), 3);
}

void TestPageDanteSpeaker::aSpeakerStandsOnTheLeftUnlessStoredOnTheRight()
{
    Shown shown;
    setSpeakerPosition(shown.doc, 1, 1, text(frontRight), QStringLiteral("R"));
    shown.page.enterFrom(5);
    QCOMPARE(shown.combo(frontLeft)->currentText(), QStringLiteral("L"));
    QCOMPARE(shown.combo(frontRight)->currentText(), QStringLiteral("R"));
    QCOMPARE(shown.combo(frontRight)->count(), 2);
    QCOMPARE(shown.combo(frontRight)->itemText(0), QStringLiteral("L"));
}

void TestPageDanteSpeaker::nextStoresThePositionsOfEveryPanelAndGoesOn()
{
    Shown shown;
    shown.choose(rear, Qt::Key_Down);
    selectGroup(shown.page, 3);
    shown.choose(frontRight, Qt::Key_R);
    selectGroup(shown.page, 1);
    press(buttonOf(shown.page, "nextButton"));
    QCOMPARE(shown.controller.nexts, 1);
    QCOMPARE(shown.stored(1, 1, rear), QStringLiteral("R"));
    QCOMPARE(shown.stored(1, 1, frontRight), QStringLiteral("L"));
    QCOMPARE(shown.stored(4, 2, frontRight), QStringLiteral("R"));
    QCOMPARE(shown.stored(3, 2, frontLeft), QStringLiteral("L"));
}

void TestPageDanteSpeaker::storingLeavesRemovedDevicesRemoved()
{
    Shown shown;
    press(buttonOf(shown.page, "nextButton"));
    QVERIFY(deviceSetRecord(shown.doc, 4, 2, text(rear))->remove);
    QVERIFY(!deviceSetRecord(shown.doc, 1, 1, text(rear))->remove);
}

void TestPageDanteSpeaker::resetAffectsAllPagesNotOnlyTheVisibleOne()
{
    Shown shown;
    setSpeakerPosition(shown.doc, 3, 2, text(frontLeft), QStringLiteral("R"));
    shown.page.enterFrom(5);
    shown.choose(rear, Qt::Key_R);
    selectGroup(shown.page, 3);
    shown.choose(frontRight, Qt::Key_R);
    selectGroup(shown.page, 0);
    press(buttonOf(shown.page, "resetButton"));
    QCOMPARE(shown.combo(rear)->currentIndex(), 0);
    selectGroup(shown.page, 3);
    QCOMPARE(shown.combo(frontRight)->currentIndex(), 0);
    // The panel of the third row has not been looked at yet.
    selectGroup(shown.page, 2);
    QCOMPARE(shown.combo(frontLeft)->currentIndex(), 0);
    shown.page.storeToDocument();
    QCOMPARE(shown.stored(3, 2, frontLeft), QStringLiteral("L"));
}

void TestPageDanteSpeaker::backStoresNothing()
{
    Shown shown;
    shown.choose(rear, Qt::Key_R);
    press(buttonOf(shown.page, "backButton"));
    QCOMPARE(shown.controller.backs, 1);
    QCOMPARE(shown.stored(1, 1, rear), QStringLiteral("L"));
}

void TestPageDanteSpeaker::comingBackFromStep7KeepsTheChoices()
{
    Shown shown;
    shown.choose(rear, Qt::Key_R);
    shown.page.enterFrom(7);
    QCOMPARE(shown.combo(rear)->currentText(), QStringLiteral("R"));
}

void TestPageDanteSpeaker::enteringFromStep5TakesThePositionsFromTheDocument()
{
    Shown shown;
    shown.choose(rear, Qt::Key_R);
    shown.page.enterFrom(5);
    QCOMPARE(shown.combo(rear)->currentText(), QStringLiteral("L"));
    QCOMPARE(shown.list->topLevelItemCount(), 5);
    QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(0));
}

void TestPageDanteSpeaker::savingTheWorkStoresThePositions()
{
    Shown shown;
    shown.choose(rear, Qt::Key_R);
    shown.page.storeToDocument();
    QCOMPARE(shown.stored(1, 1, rear), QStringLiteral("R"));
    QCOMPARE(shown.controller.nexts, 0);
}

void TestPageDanteSpeaker::restoringTakesThePositionsFromTheDocument()
{
    TesselDoc doc(nullptr);
    fillDocument(doc);
    setSpeakerPosition(doc, 1, 1, text(rear), QStringLiteral("R"));
    FakeController controller;
    PageDanteSpeaker page(&controller, &doc, nullptr);
    page.restoreFromDocument();
    auto* table = tableOf(*shownPanel(page), "speakerTable");
    const auto* combo = widgetIn(rowWith(*table, "IP Address", text(rear)), "Position");
    QCOMPARE(qobject_cast<const QComboBox*>(combo)->currentText(), QStringLiteral("R"));
}

void TestPageDanteSpeaker::selectingARowShowsItsPanelAndPicture()
{
    const Shown shown;
    QCOMPARE(shownPicture(*shownPanel(shown.page)), QColor(Qt::cyan));
    selectGroup(shown.page, 2);
    QCOMPARE(shownPicture(*shownPanel(shown.page)), QColor(Qt::yellow));
    QCOMPARE(columnTexts(*shown.table(), "IP Address"), QStringList{text(frontLeft)});
}

void TestPageDanteSpeaker::theIdentifyButtonMakesTheSpeakerIdentifyItself()
{
    QTcpServer speaker;
    QVERIFY(speaker.listen(QHostAddress(text(frontLeft)), textCommandPort));
    const Shown shown;
    QTreeWidgetItem* row = rowWith(*shown.table(), "IP Address", text(frontLeft));
    press(namedWidgetIn(row, "Identify"));
    QTRY_VERIFY(speaker.hasPendingConnections());
    QTcpSocket* connection = speaker.nextPendingConnection();
    QTRY_COMPARE(connection->bytesAvailable(), qsizetype(sizeof "identify 5"));
    QCOMPARE(connection->readAll(), QByteArray("identify 5\n"));
}

void TestPageDanteSpeaker::theWheelNeverChangesAPosition()
{
    const Shown shown;
    QComboBox* combo = shown.combo(rear);
    const QPointF middle = QRectF(combo->rect()).center();
    QWheelEvent wheel(middle, combo->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &wheel);
    QCOMPARE(combo->currentText(), QStringLiteral("L"));
}

void TestPageDanteSpeaker::withoutLayoutsNothingIsListedAndNothingBreaks()
{
    Shown shown;
    clearLayouts(shown.doc);
    shown.page.enterFrom(5);
    QCOMPARE(shown.list->topLevelItemCount(), 0);
    QVERIFY(!shownPanel(shown.page));
    press(buttonOf(shown.page, "resetButton"));
    press(buttonOf(shown.page, "nextButton"));
    QCOMPARE(shown.controller.nexts, 1);
}

void TestPageDanteSpeaker::combosSayWhosePositionTheyTell()
{
    const Shown shown;
    QCOMPARE(shown.combo(rear)->accessibleName(), QStringLiteral("Position of A-Rear"));
    // On some platforms screen readers hear the chosen text in place of the name.
    QCOMPARE(shown.combo(rear)->accessibleDescription(), QStringLiteral("Position of A-Rear"));
    QCOMPARE(shown.combo(rear)->objectName(), QStringLiteral("positionCombo"));
}

void TestPageDanteSpeaker::theCellSaysWhatItsComboShows()
{
    const Shown shown;
    QTreeWidgetItem* row = shown.table()->topLevelItem(0);
    auto* combo = qobject_cast<QComboBox*>(shown.table()->itemWidget(row, 5));
    QCOMPARE(row->data(5, Qt::AccessibleTextRole).toString(), combo->currentText());
    const QString before = combo->currentText();
    QTest::keyClick(combo, before == u"L" ? Qt::Key_Down : Qt::Key_Up);
    QVERIFY(combo->currentText() != before);
    QCOMPARE(row->data(5, Qt::AccessibleTextRole).toString(), combo->currentText());
    QCOMPARE(row->text(5), QString());
}

void TestPageDanteSpeaker::tabGoesFromTheListThroughTheShownPanelToTheButtons()
{
    Shown shown;
    selectGroup(shown.page, 2);
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.list->setFocus();
    const QList<QWidget*> order{shown.table(),
                                shown.table()->itemWidget(shown.table()->topLevelItem(0), 1),
                                shown.combo(frontLeft), buttonOf(shown.page, "backButton")};
    for (const QWidget* stop : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stop);
    }
}

TESSEL_TEST_MAIN(TestPageDanteSpeaker)
#include "tst_pagedantespeaker.moc"
