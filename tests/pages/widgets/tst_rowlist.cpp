#include "identifybutton.h"
#include "rowlist.h"
#include "testcase.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace {

constexpr int buttonColumn = 1;
constexpr int fieldColumn = 2;

/// A list whose rows hold a button and a field, between two fields of its window.
struct Window : QWidget
{
    Window()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(before);
        layout->addWidget(list);
        layout->addWidget(after);
        list->setColumnCount(3);
        QWidget* last = list;
        for (const char* label : {"Alpha", "Bravo", "Charlie", "Delta"}) {
            auto* row = new QTreeWidgetItem(list, {QString::fromLatin1(label)});
            list->setItemWidget(row, buttonColumn, new IdentifyButton(QString(), list));
            list->setItemWidget(row, fieldColumn, new QLineEdit(list));
            for (const int column : {buttonColumn, fieldColumn}) {
                list->chain(last, list->itemWidget(row, column));
                last = list->itemWidget(row, column);
            }
        }
        QWidget::setTabOrder(last, after);
        resize(500, 300);
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    QWidget* button(int row) const
    {
        return list->itemWidget(list->topLevelItem(row), buttonColumn);
    }
    QWidget* field(int row) const { return list->itemWidget(list->topLevelItem(row), fieldColumn); }
    int currentRow() const { return list->currentIndex().row(); }
    void stand(int row) const
    {
        list->setFocus();
        list->setCurrentItem(list->topLevelItem(row));
    }

    QLineEdit* before = new QLineEdit(this);
    RowList* list = new RowList(this);
    QLineEdit* after = new QLineEdit(this);
};

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

} // namespace

class TestRowList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tabLeadsFromARowIntoTheWidgetsOfThatRow();
    void tabLeadsFromTheLastWidgetToWhatFollows();
    void shiftTabLeadsBackToTheRow();
    void tabPassesOverWhatIsHiddenOrDisabled();
    void aListWithoutRowsIsPassed();
    void lettersSearchInTheFirstColumn_data();
    void lettersSearchInTheFirstColumn();
    void aSearchTakesTheFocusAlong();
    void arrowsTakeTheFocusAlong_data();
    void arrowsTakeTheFocusAlong();
    void arrowsBeginWhereTheFocusIs();
    void whereNothingTakesItTheFocusGoesToTheList();
    void theClickedCellIsCopied();
    void aModifierAloneMovesNothing_data();
    void aModifierAloneMovesNothing();
};

void TestRowList::tabLeadsFromARowIntoTheWidgetsOfThatRow()
{
    const Window window;
    for (const int row : {2, 0, 3, 1}) {
        window.stand(row);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), window.button(row));
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), window.field(row));
        QCOMPARE(window.currentRow(), row);
    }
}

void TestRowList::tabLeadsFromTheLastWidgetToWhatFollows()
{
    const Window window;
    window.stand(2);
    for (QWidget* stop : {window.button(2), window.field(2), window.button(3), window.field(3),
                          static_cast<QWidget*>(window.after)}) {
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stop);
    }
}

void TestRowList::shiftTabLeadsBackToTheRow()
{
    const Window window;
    window.stand(2);
    const QList<QWidget*> way{window.button(2), window.field(2), window.button(3), window.field(3)};
    for (qsizetype i = 0; i < way.size(); ++i) {
        press(Qt::Key_Tab);
    }
    for (qsizetype i = way.size() - 2; i >= 0; --i) {
        press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), way.at(i));
    }
    press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), window.list);
    QCOMPARE(window.currentRow(), 2);
    press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), window.before);
}

void TestRowList::tabPassesOverWhatIsHiddenOrDisabled()
{
    const Window window;
    window.button(1)->hide();
    window.stand(1);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.field(1));
    window.button(2)->setEnabled(false);
    window.stand(2);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.field(2));
}

void TestRowList::aListWithoutRowsIsPassed()
{
    const Window window;
    window.list->clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window.list->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.after);
}

void TestRowList::lettersSearchInTheFirstColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("from the list") << 0;
    QTest::newRow("from a widget of a row, back in the list") << fieldColumn;
    QTest::newRow("from a button of a row") << buttonColumn;
}

void TestRowList::lettersSearchInTheFirstColumn()
{
    QFETCH(const int, column);
    const Window window;
    for (int row = 0; row < 4; ++row) {
        // Where else might be searched.
        window.list->topLevelItem(row)->setText(buttonColumn, QStringLiteral("Delta"));
        window.list->topLevelItem(row)->setText(fieldColumn, QStringLiteral("Delta"));
    }
    window.stand(0);
    for (int i = 0; i < column; ++i) {
        press(Qt::Key_Tab);
    }
    if (column == fieldColumn) {
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), window.list);
    }
    press(Qt::Key_D);
    QCOMPARE(window.currentRow(), 3);
    press(Qt::Key_E);
    QCOMPARE(window.currentRow(), 3);
}

void TestRowList::aSearchTakesTheFocusAlong()
{
    const Window window;
    window.stand(0);
    press(Qt::Key_Tab);
    press(Qt::Key_C);
    QCOMPARE(window.currentRow(), 2);
    QCOMPARE(QApplication::focusWidget(), window.button(2));
}

void TestRowList::arrowsTakeTheFocusAlong_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("button") << buttonColumn;
    QTest::newRow("field") << fieldColumn;
}

void TestRowList::arrowsTakeTheFocusAlong()
{
    QFETCH(const int, column);
    const Window window;
    window.stand(1);
    for (int i = 0; i < column; ++i) {
        press(Qt::Key_Tab);
    }
    const QList<std::pair<Qt::Key, int>> keys{{Qt::Key_Down, 2},   {Qt::Key_Down, 3},
                                              {Qt::Key_Down, 3},   {Qt::Key_Up, 2},
                                              {Qt::Key_PageUp, 0}, {Qt::Key_PageDown, 3}};
    for (const auto& [key, row] : keys) {
        press(key);
        QCOMPARE(window.currentRow(), row);
        QCOMPARE(QApplication::focusWidget(),
                 window.list->itemWidget(window.list->topLevelItem(row), column));
    }
}

void TestRowList::arrowsBeginWhereTheFocusIs()
{
    const Window window;
    window.stand(0);
    QTest::mouseClick(window.button(2), Qt::LeftButton);
    window.list->setCurrentItem(window.list->topLevelItem(0));
    QCOMPARE(QApplication::focusWidget(), window.button(2));
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), window.button(3));
    QCOMPARE(window.currentRow(), 3);
}

void TestRowList::whereNothingTakesItTheFocusGoesToTheList()
{
    const Window window;
    window.button(2)->hide();
    window.stand(1);
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    QCOMPARE(window.currentRow(), 2);
    QCOMPARE(QApplication::focusWidget(), window.list);
}

void TestRowList::theClickedCellIsCopied()
{
    const Window window;
    QTreeWidgetItem* row = window.list->topLevelItem(1);
    window.list->removeItemWidget(row, fieldColumn);
    row->setText(fieldColumn, QStringLiteral("192.168.1.7"));
    const QPoint cell =
        window.list->visualRect(window.list->indexFromItem(row, fieldColumn)).center();
    QTest::mouseClick(window.list->viewport(), Qt::LeftButton, {}, cell);
    QTest::keyClick(window.list, Qt::Key_Control);
    QTest::keyClick(window.list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("192.168.1.7"));
}

void TestRowList::aModifierAloneMovesNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Ctrl") << Qt::Key_Control;
    QTest::newRow("Shift") << Qt::Key_Shift;
    QTest::newRow("Alt") << Qt::Key_Alt;
}

void TestRowList::aModifierAloneMovesNothing()
{
    QFETCH(const Qt::Key, key);
    const Window window;
    window.stand(1);
    const QModelIndex cell = window.list->currentIndex().siblingAtColumn(fieldColumn);
    window.list->setCurrentIndex(cell);
    QTest::keyClick(window.list, key);
    QCOMPARE(window.list->currentIndex(), cell);
}

TESSEL_TEST_MAIN(TestRowList)
#include "tst_rowlist.moc"
