#include "devicetable.h"
#include "identifybutton.h"
#include "testcase.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestDeviceTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsOneRowPerDevice();
    void sortsByTheLabelOnlyWhereSortingIsOn();
    void replacesTheRowsOfBefore();
    void findsARowByItsAddress();
    void twoDevicesOfOneAddressAreFoundAsTheFirst();
    void forgetsRowsThatAreGone();
    void everyRowHasAnIdentifyButtonNamedAfterItsDevice();
    void theCellOfTheButtonSaysSo();
    void tellsWhichDeviceIsToIdentifyItself();
    void aNewLabelAlsoNamesTheIdentifyButton();
    void decoratesEveryRowOnceInTheOrderShown();
    void textsSetWhileDecoratingDoNotMoveRows();
    void rowsAreComfortablyHighAndButtonsCentred();
    void tabGoesThroughTheRowsInReadingOrder_data();
    void tabGoesThroughTheRowsInReadingOrder();
    void tabFollowsTheRowsWhenTheyAreSortedAnew();
    void theRowThatTabComesToIsInSight();
    void aRowScrolledAwayComesBackWithTheFocus();
    void aShownTableIsLaidOutNoOftenerForMoreRows();
};

namespace {

constexpr int roomColumn = 3;

struct Table : DeviceTable
{
    explicit Table(QWidget* parent = nullptr)
        : DeviceTable({QStringLiteral("Hostname"), QString(), QStringLiteral("IP Address"),
                       QStringLiteral("Room")},
                      2, parent)
    {
        resize(500, 300);
    }

    QStringList labels() const
    {
        QStringList labels;
        for (int i = 0; i < topLevelItemCount(); ++i) {
            labels.append(topLevelItem(i)->text(0));
        }
        return labels;
    }

    QWidget* buttonOf(int row) const { return itemWidget(topLevelItem(row), IdentifyColumn); }

    void doItemsLayout() override
    {
        ++layouts;
        DeviceTable::doItemsLayout();
    }

    int layouts = 0; ///< how many times all rows were laid out
};

QStringList device(const QString& label, int number)
{
    return {label, QString(), QStringLiteral("10.0.%1.%2").arg(number / 256).arg(number % 256)};
}

QList<QStringList> threeDevices()
{
    return {device(QStringLiteral("Mike"), 3), device(QStringLiteral("Alpha"), 1),
            device(QStringLiteral("Bravo"), 2)};
}

QList<QStringList> devices(int count)
{
    QList<QStringList> rows;
    for (int i = 0; i < count; ++i) {
        rows.append(device(QStringLiteral("Device %1").arg((i * 7919) % count), i));
    }
    return rows;
}

/// A frame that takes no focus around a button that does, as the pencils of the hostnames have.
void addFramedButton(QTreeWidget& table, QTreeWidgetItem* row)
{
    auto* frame = new QWidget(&table);
    new IdentifyButton(QString(), frame);
    table.setItemWidget(row, roomColumn, frame);
}

bool isInSight(const QTreeWidget& table, const QWidget* widget)
{
    return widget && table.viewport()->rect().contains(
                         QRect(widget->mapTo(table.viewport(), QPoint()), widget->size()));
}

void addRoomBox(QTreeWidget& table, QTreeWidgetItem* row)
{
    auto* box = new QComboBox(&table);
    box->addItems({QStringLiteral("No Assign"), QStringLiteral("1")});
    table.setItemWidget(row, roomColumn, box);
}

} // namespace

void TestDeviceTable::showsOneRowPerDevice()
{
    Table table;
    table.setRows(threeDevices());
    QCOMPARE(table.labels(), QStringList({QStringLiteral("Mike"), QStringLiteral("Alpha"),
                                          QStringLiteral("Bravo")}));
    QCOMPARE(table.headerItem()->text(2), QStringLiteral("IP Address"));
    QCOMPARE(table.columnCount(), 4);
    QVERIFY(!table.rootIsDecorated());
    QCOMPARE(table.addressOf(table.topLevelItem(0)), QStringLiteral("10.0.0.3"));
}

void TestDeviceTable::sortsByTheLabelOnlyWhereSortingIsOn()
{
    Table table;
    table.setSortingEnabled(true);
    table.sortByColumn(2, Qt::DescendingOrder);
    table.setRows(threeDevices());
    QVERIFY(table.isSortingEnabled());
    QCOMPARE(table.labels(), QStringList({QStringLiteral("Alpha"), QStringLiteral("Bravo"),
                                          QStringLiteral("Mike")}));
    QCOMPARE(table.header()->sortIndicatorSection(), 0);
    QCOMPARE(table.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    table.setSortingEnabled(false);
    table.setRows(threeDevices());
    QCOMPARE(table.labels().first(), QStringLiteral("Mike"));
}

void TestDeviceTable::replacesTheRowsOfBefore()
{
    Table table;
    table.setRows(threeDevices());
    table.setRows({device(QStringLiteral("Zulu"), 9)});
    QCOMPARE(table.labels(), QStringList({QStringLiteral("Zulu")}));
    QCOMPARE(table.rowOf(QStringLiteral("10.0.0.3")), nullptr);
    table.setRows({});
    QCOMPARE(table.topLevelItemCount(), 0);
}

void TestDeviceTable::findsARowByItsAddress()
{
    Table table;
    table.setSortingEnabled(true);
    table.setRows(threeDevices());
    QCOMPARE(table.rowOf(QStringLiteral("10.0.0.2"))->text(0), QStringLiteral("Bravo"));
    QCOMPARE(table.rowOf(QStringLiteral("10.0.0.20")), nullptr);
    QCOMPARE(table.rowOf(QString()), nullptr);
}

void TestDeviceTable::twoDevicesOfOneAddressAreFoundAsTheFirst()
{
    Table table;
    table.setRows({device(QStringLiteral("One"), 5), device(QStringLiteral("Two"), 5)});
    QCOMPARE(table.topLevelItemCount(), 2);
    QCOMPARE(table.rowOf(QStringLiteral("10.0.0.5"))->text(0), QStringLiteral("One"));
    const QList<QTreeWidgetItem*> rows = table.rowsOf(QStringLiteral("10.0.0.5"));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.last()->text(0), QStringLiteral("Two"));
    QVERIFY(table.rowsOf(QStringLiteral("10.0.0.6")).isEmpty());
}

void TestDeviceTable::forgetsRowsThatAreGone()
{
    Table table;
    table.setRows(threeDevices());
    table.clear();
    QCOMPARE(table.rowOf(QStringLiteral("10.0.0.2")), nullptr);
}

void TestDeviceTable::everyRowHasAnIdentifyButtonNamedAfterItsDevice()
{
    Table table;
    table.setRows(threeDevices());
    for (int row = 0; row < 3; ++row) {
        QVERIFY(qobject_cast<IdentifyButton*>(table.buttonOf(row)));
        QCOMPARE(table.buttonOf(row)->accessibleName(),
                 QStringLiteral("Identify ") + table.topLevelItem(row)->text(0));
        QVERIFY(!table.buttonOf(row)->toolTip().isEmpty());
    }
}

void TestDeviceTable::theCellOfTheButtonSaysSo()
{
    Table table;
    table.setRows({{QStringLiteral("Hub-A"), QString(), QStringLiteral("10.0.0.1"), QString()}});
    const QModelIndex cell = table.model()->index(0, DeviceTable::IdentifyColumn);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Identify"));
    QVERIFY(cell.data().toString().isEmpty()); // nothing is painted beside the button
}

void TestDeviceTable::tellsWhichDeviceIsToIdentifyItself()
{
    Table table;
    table.setSortingEnabled(true);
    table.setRows(threeDevices());
    table.show();
    QSignalSpy identify(&table, SIGNAL(identifyClicked(QString)));
    QTest::mouseClick(table.buttonOf(1), Qt::LeftButton);
    QCOMPARE(identify.size(), 1);
    QCOMPARE(identify.first().first().toString(), QStringLiteral("10.0.0.2"));
}

void TestDeviceTable::aNewLabelAlsoNamesTheIdentifyButton()
{
    Table table;
    table.setSortingEnabled(true);
    table.setRows(threeDevices());
    QTreeWidgetItem* row = table.rowOf(QStringLiteral("10.0.0.1"));
    table.setLabel(row, QStringLiteral("Zulu"));
    QCOMPARE(table.labels().last(), QStringLiteral("Zulu"));
    QCOMPARE(table.buttonOf(2)->accessibleName(), QStringLiteral("Identify Zulu"));
}

void TestDeviceTable::decoratesEveryRowOnceInTheOrderShown()
{
    Table table;
    table.setSortingEnabled(true);
    QStringList labels;
    table.setRows(threeDevices(), [&](QTreeWidgetItem* row) {
        QVERIFY(table.itemWidget(row, DeviceTable::IdentifyColumn));
        QCOMPARE(table.topLevelItemCount(), 3);
        labels.append(row->text(0));
    });
    QCOMPARE(labels, QStringList({QStringLiteral("Alpha"), QStringLiteral("Bravo"),
                                  QStringLiteral("Mike")}));
}

void TestDeviceTable::textsSetWhileDecoratingDoNotMoveRows()
{
    Table table;
    table.setSortingEnabled(true);
    int visited = 0;
    table.setRows(devices(20), [&](QTreeWidgetItem* row) {
        row->setText(roomColumn, QString::number(20 - visited));
        QCOMPARE(table.indexOfTopLevelItem(row), visited);
        ++visited;
    });
    QCOMPARE(visited, 20);
}

void TestDeviceTable::rowsAreComfortablyHighAndButtonsCentred()
{
    Table table;
    table.setColumnWidth(DeviceTable::IdentifyColumn, 40);
    table.setRows(threeDevices());
    table.show();
    for (int row = 0; row < 3; ++row) {
        const QRect cell = table.visualRect(table.model()->index(row, DeviceTable::IdentifyColumn));
        QVERIFY(cell.height() >= 24);
        QCOMPARE(table.buttonOf(row)->size(), QSize(20, 20));
        QVERIFY((table.buttonOf(row)->geometry().center() - cell.center()).manhattanLength() <= 2);
    }
}

void TestDeviceTable::tabGoesThroughTheRowsInReadingOrder_data()
{
    QTest::addColumn<bool>("sorted");
    QTest::newRow("sorted") << true;
    QTest::newRow("as given") << false;
}

void TestDeviceTable::tabGoesThroughTheRowsInReadingOrder()
{
    QFETCH(const bool, sorted);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* table = new Table(&window);
    auto* after = new QLineEdit(&window);
    layout->addWidget(table);
    layout->addWidget(after);
    table->setSortingEnabled(sorted);
    table->setRows(threeDevices(), [table](QTreeWidgetItem* row) { addRoomBox(*table, row); });
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    table->setFocus();
    for (int row = 0; row < 3; ++row) {
        for (const int column : {int(DeviceTable::IdentifyColumn), roomColumn}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(),
                     table->itemWidget(table->topLevelItem(row), column));
        }
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
}

void TestDeviceTable::tabFollowsTheRowsWhenTheyAreSortedAnew()
{
    Table table;
    table.setSortingEnabled(true);
    table.setRows(threeDevices());
    table.show();
    table.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&table));
    table.sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(table.labels().first(), QStringLiteral("Mike"));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Home);
    for (int row = 0; row < 3; ++row) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), table.buttonOf(row));
    }
}

void TestDeviceTable::theRowThatTabComesToIsInSight()
{
    Table table;
    table.setRows(devices(40), [&](QTreeWidgetItem* row) { addFramedButton(table, row); });
    table.show();
    table.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&table));
    table.setFocus();
    // Down through two stops per row, and up again.
    for (int stop = 0; stop < 80; ++stop) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(isInSight(table, QApplication::focusWidget()));
        QCOMPARE(table.currentItem(), table.topLevelItem(stop / 2));
    }
    for (int stop = 78; stop >= 0; --stop) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QVERIFY(isInSight(table, QApplication::focusWidget()));
        QCOMPARE(table.currentItem(), table.topLevelItem(stop / 2));
    }
}

void TestDeviceTable::aRowScrolledAwayComesBackWithTheFocus()
{
    Table table;
    table.setRows(devices(40), [&](QTreeWidgetItem* row) { addFramedButton(table, row); });
    table.show();
    table.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&table));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Tab);
    QCOMPARE(table.currentItem(), table.topLevelItem(0));
    table.scrollToBottom();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(table.currentItem(), table.topLevelItem(0));
    QVERIFY(isInSight(table, QApplication::focusWidget()));
}

void TestDeviceTable::aShownTableIsLaidOutNoOftenerForMoreRows()
{
    const auto layouts = [](int rows) {
        Table table;
        table.setSortingEnabled(true);
        table.show();
        const int before = table.layouts;
        table.setRows(devices(rows), [&](QTreeWidgetItem* row) { addRoomBox(table, row); });
        QCoreApplication::processEvents();
        return table.layouts - before;
    };
    const int some = layouts(10);
    QVERIFY(some > 0);
    QCOMPARE(layouts(250), some);
    QCOMPARE(layouts(1000), some);
}

TESSEL_TEST_MAIN(TestDeviceTable)
#include "tst_devicetable.moc"
