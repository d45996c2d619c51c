#include "announcements.h"
#include "fakecontroller.h"
#include "hands.h"
#include "layoutqueries.h"
#include "pagecreatepreset.h"
#include "pagefixtures.h"
#include "presetqueries.h"
#include "tablefixtures.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

class TestPageCreatePreset : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToDo();
    void everyCombinedRoomOfEveryLayoutHasARunningNumber();
    void aCombinedRoomHasTheColourOfItsFirstRoom();
    void aNameOf256CharactersIsCutTo255WhileTyping();
    void aPastedNameIsCutTo255();
    void nextStoresTheNamesAsTypedAndGoesOn();
    void emptyNamesAreStoredAsTheyAre();
    void storingReplacesThePresetsOfLayoutsThatAreGone();
    void backStoresNothing();
    void resetClearsEveryNameField();
    void reenteringFromStep8KeepsTheFields();
    void enteringFromStep6RebuildsTheListAndRefillsStoredNames();
    void restoringRefillsStoredNames();
    void savingTheWorkStoresTheNames();
    void thePictureIsThatOfTheSelectedLayout();
    void aFieldThatIsEnteredSelectsItsRow();
    void withoutLayoutsNothingIsListedAndNothingBreaks();
    void fieldsAreReachedWithTabFromTopToBottomBeforeTheButtons();
    void upAndDownLeadFromFieldToField();
    void upAndDownReportTheFieldThatHasTheFocus();
    void fieldsSayWhatTheyName();
    void theCellSaysWhatItsFieldShows();
};

namespace {

struct Shown
{
    Shown()
    {
        drawRooms(doc, 3);
        addColouredLayout(doc, 1, QStringLiteral("1+2/3"), Qt::cyan);
        addColouredLayout(doc, 2, QStringLiteral("1/2/3"), Qt::yellow);
        page.enterFrom(6);
        page.resize(780, 540);
        page.show();
    }

    QLineEdit* field(int row) const
    {
        return qobject_cast<QLineEdit*>(widgetIn(list->topLevelItem(row), "Preset Names"));
    }

    QStringList names() const
    {
        QStringList texts;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            texts.append(field(row)->text());
        }
        return texts;
    }

    TesselDoc doc{nullptr};
    FakeController controller;
    PageCreatePreset page{&controller, &doc, nullptr};
    QTreeWidget* list = tableOf(page, "roomGroupList");
};

/// What screen readers were told last of where the focus is.
QObject* reportedFocus = nullptr;

void noteFocus(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Focus) {
        reportedFocus = event->object();
    }
}

} // namespace

void TestPageCreatePreset::saysWhatToDo()
{
    const Shown shown;
    QCOMPARE(shown.page.title(), QStringLiteral("7. Create presets"));
    QCOMPARE(shown.page.pageNumber(), 7);
    const QStringList texts = labelTexts(shown.page);
    QVERIFY(texts.contains(
        QStringLiteral("Each room combination will be configured as a preset on the PX-HBs.")));
    QVERIFY(texts.contains(QStringLiteral("Please provide a name for the preset.")));
    QVERIFY(texts.contains(QStringLiteral("Select a room combination")));
    const QStringList headers{QStringLiteral("No."), QStringLiteral("Layout"),
                              QStringLiteral("Rooms"), QStringLiteral("Preset Names")};
    for (int column = 0; column < headers.size(); ++column) {
        QCOMPARE(shown.list->headerItem()->text(column), headers.at(column));
    }
}

void TestPageCreatePreset::everyCombinedRoomOfEveryLayoutHasARunningNumber()
{
    const Shown shown;
    const QStringList numbers{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                              QStringLiteral("4"), QStringLiteral("5")};
    QCOMPARE(columnTexts(*shown.list, "No."), numbers);
    const QStringList layouts{QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2"),
                              QStringLiteral("2"), QStringLiteral("2")};
    QCOMPARE(columnTexts(*shown.list, "Layout"), layouts);
    const QStringList rooms{QStringLiteral("1,2"), QStringLiteral("3"), QStringLiteral("1"),
                            QStringLiteral("2"), QStringLiteral("3")};
    QCOMPARE(columnTexts(*shown.list, "Rooms"), rooms);
    QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(0));
}

void TestPageCreatePreset::aCombinedRoomHasTheColourOfItsFirstRoom()
{
    const Shown shown;
    const QList<QColor> colours{QColor(0xB0, 0x68, 0x00), QColor(0x14, 0x5C, 0x97),
                                QColor(0xB0, 0x68, 0x00), QColor(0x44, 0x84, 0x47),
                                QColor(0x14, 0x5C, 0x97)};
    for (int row = 0; row < colours.size(); ++row) {
        QCOMPARE(shown.list->topLevelItem(row)->background(2).color(), colours.at(row));
        QCOMPARE(shown.list->topLevelItem(row)->foreground(2).color(), QColor(Qt::white));
    }
}

void TestPageCreatePreset::aNameOf256CharactersIsCutTo255WhileTyping()
{
    const Shown shown;
    QTest::keyClicks(shown.field(0), QString(256, u'n'));
    QCOMPARE(shown.field(0)->text(), QString(255, u'n'));
}

void TestPageCreatePreset::aPastedNameIsCutTo255()
{
    const Shown shown;
    QApplication::clipboard()->setText(QString(300, u'p'));
    shown.field(1)->paste();
    QCOMPARE(shown.field(1)->text(), QString(255, u'p'));
}

void TestPageCreatePreset::nextStoresTheNamesAsTypedAndGoesOn()
{
    Shown shown;
    const QString odd = QStringLiteral("\u00c4 \"x\" \\ y 50%2");
    shown.field(0)->setText(odd);
    QTest::keyClicks(shown.field(4), QStringLiteral("Room 3 alone"));
    press(buttonOf(shown.page, "nextButton"));
    QCOMPARE(shown.controller.nexts, 1);
    QCOMPARE(presetName(shown.doc, 1, 1), std::optional(odd));
    QCOMPARE(presetName(shown.doc, 5, 2), std::optional(QStringLiteral("Room 3 alone")));
    QVERIFY(!presetName(shown.doc, 5, 1));
    QVERIFY(!presetName(shown.doc, 6, 2));
}

void TestPageCreatePreset::emptyNamesAreStoredAsTheyAre()
{
    Shown shown;
    press(buttonOf(shown.page, "nextButton"));
    QCOMPARE(presetName(shown.doc, 3, 2), std::optional(QString()));
}

void TestPageCreatePreset::storingReplacesThePresetsOfLayoutsThatAreGone()
{
    Shown shown;
    press(buttonOf(shown.page, "nextButton"));
    clearLayouts(shown.doc);
    addColouredLayout(shown.doc, 1, QStringLiteral("1+2+3"), Qt::red);
    shown.page.enterFrom(6);
    QCOMPARE(shown.list->topLevelItemCount(), 1);
    press(buttonOf(shown.page, "nextButton"));
    QVERIFY(presetName(shown.doc, 1, 1));
    QVERIFY(!presetName(shown.doc, 2, 1));
    QVERIFY(!presetName(shown.doc, 3, 2));
}

void TestPageCreatePreset::backStoresNothing()
{
    Shown shown;
    QTest::keyClicks(shown.field(0), QStringLiteral("x"));
    press(buttonOf(shown.page, "backButton"));
    QCOMPARE(shown.controller.backs, 1);
    QCOMPARE(shown.controller.nexts, 0);
    QVERIFY(!presetName(shown.doc, 1, 1));
}

void TestPageCreatePreset::resetClearsEveryNameField()
{
    Shown shown;
    for (int row = 0; row < 5; ++row) {
        QTest::keyClicks(shown.field(row), QStringLiteral("name"));
    }
    shown.page.storeToDocument();
    press(buttonOf(shown.page, "resetButton"));
    QCOMPARE(shown.names().join(QString()), QString());
    QCOMPARE(presetName(shown.doc, 1, 1), std::optional(QStringLiteral("name")));
}

void TestPageCreatePreset::reenteringFromStep8KeepsTheFields()
{
    Shown shown;
    QTest::keyClicks(shown.field(2), QStringLiteral("not stored yet"));
    shown.page.enterFrom(8);
    QCOMPARE(shown.field(2)->text(), QStringLiteral("not stored yet"));
}

void TestPageCreatePreset::enteringFromStep6RebuildsTheListAndRefillsStoredNames()
{
    Shown shown;
    QTest::keyClicks(shown.field(2), QStringLiteral("stored"));
    shown.page.storeToDocument();
    QTest::keyClicks(shown.field(3), QStringLiteral("forgotten"));
    shown.page.enterFrom(6);
    const QStringList names{QString(), QString(), QStringLiteral("stored"), QString(), QString()};
    QCOMPARE(shown.names(), names);
}

void TestPageCreatePreset::restoringRefillsStoredNames()
{
    Shown shown;
    clearPresets(shown.doc);
    addPreset(shown.doc, 4, 2, QStringLiteral("from the file"));
    shown.page.restoreFromDocument();
    QCOMPARE(shown.field(3)->text(), QStringLiteral("from the file"));
}

void TestPageCreatePreset::savingTheWorkStoresTheNames()
{
    Shown shown;
    QTest::keyClicks(shown.field(1), QStringLiteral("half-way"));
    shown.page.storeToDocument();
    QCOMPARE(presetName(shown.doc, 2, 1), std::optional(QStringLiteral("half-way")));
    QCOMPARE(shown.controller.nexts, 0);
}

void TestPageCreatePreset::thePictureIsThatOfTheSelectedLayout()
{
    const Shown shown;
    QCOMPARE(shownPicture(shown.page), QColor(Qt::cyan));
    Hands::clickRow(shown.list->topLevelItem(3));
    QCOMPARE(shownPicture(shown.page), QColor(Qt::yellow));
    Hands::clickRow(shown.list->topLevelItem(1));
    QCOMPARE(shownPicture(shown.page), QColor(Qt::cyan));
}

void TestPageCreatePreset::aFieldThatIsEnteredSelectsItsRow()
{
    const Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.page.window()));
    press(shown.field(4));
    QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(4));
    QCOMPARE(shownPicture(shown.page), QColor(Qt::yellow));
    QVERIFY(shown.field(4)->hasFocus());
    for (int row = 3; row >= 0; --row) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QVERIFY(shown.field(row)->hasFocus());
        QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(row));
    }
    QCOMPARE(shownPicture(shown.page), QColor(Qt::cyan));
}

void TestPageCreatePreset::withoutLayoutsNothingIsListedAndNothingBreaks()
{
    Shown shown;
    clearLayouts(shown.doc);
    shown.page.enterFrom(6);
    QCOMPARE(shown.list->topLevelItemCount(), 0);
    QVERIFY(!shownPicture(shown.page).isValid());
    press(buttonOf(shown.page, "resetButton"));
    press(buttonOf(shown.page, "nextButton"));
    QCOMPARE(shown.controller.nexts, 1);
}

void TestPageCreatePreset::fieldsAreReachedWithTabFromTopToBottomBeforeTheButtons()
{
    const Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.page.window()));
    shown.list->setFocus();
    for (int row = 0; row < 5; ++row) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), shown.field(row));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), buttonOf(shown.page, "backButton"));
}

void TestPageCreatePreset::upAndDownLeadFromFieldToField()
{
    const Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.page.window()));
    press(shown.field(1));
    const QList<std::pair<Qt::Key, int>> keys{
        {Qt::Key_Down, 2}, {Qt::Key_Down, 3}, {Qt::Key_Up, 2}, {Qt::Key_Up, 1}};
    for (const auto& [key, row] : keys) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QVERIFY(shown.field(row)->hasFocus());
        QCOMPARE(shown.list->currentItem(), shown.list->topLevelItem(row));
        QCOMPARE(shownPicture(shown.page), QColor(row < 2 ? Qt::cyan : Qt::yellow));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X);
    QCOMPARE(shown.names(),
             QStringList({QString(), QStringLiteral("x"), QString(), QString(), QString()}));
}

void TestPageCreatePreset::upAndDownReportTheFieldThatHasTheFocus()
{
    const Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.page.window()));
    press(shown.field(1));
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    // The last of several is what is read out.
    const auto before = QAccessible::installUpdateHandler(noteFocus);
    const QList<std::pair<Qt::Key, int>> keys{{Qt::Key_Down, 2}, {Qt::Key_Up, 1}};
    for (const auto& [key, row] : keys) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(reportedFocus, shown.field(row));
    }
    QAccessible::installUpdateHandler(before);
}

void TestPageCreatePreset::fieldsSayWhatTheyName()
{
    const Shown shown;
    QCOMPARE(shown.field(0)->accessibleName(),
             QStringLiteral("Preset name of rooms 1,2 in layout 1"));
    QCOMPARE(shown.field(4)->accessibleName(),
             QStringLiteral("Preset name of rooms 3 in layout 2"));
}

void TestPageCreatePreset::theCellSaysWhatItsFieldShows()
{
    const Shown shown;
    const auto* list = shown.page.findChild<QTreeWidget*>(QStringLiteral("roomGroupList"));
    const QModelIndex cell = list->model()->index(1, 3);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QString());
    QTest::keyClicks(shown.field(1), QStringLiteral("Foyer"));
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Foyer"));
    QVERIFY(cell.data().toString().isEmpty());
}

TESSEL_TEST_MAIN(TestPageCreatePreset)
#include "tst_pagecreatepreset.moc"
