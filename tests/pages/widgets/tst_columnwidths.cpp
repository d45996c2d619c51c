#include "columnwidths.h"
#include "testcase.h"

#include <QTest>
#include <QTreeWidget>

namespace {

enum Column
{
    NamedColumn,
    OtherColumn,
    LastColumn
};

void setPoints(QWidget& widget, double points)
{
    QFont font = widget.font();
    font.setPointSizeF(points);
    widget.setFont(font);
}

} // namespace

class TestColumnWidths : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsGrowAndShrinkWithTheFont();
    void aColumnWidenedByHandStaysWiderWithAnotherFont();
};

void TestColumnWidths::columnsGrowAndShrinkWithTheFont()
{
    QTreeWidget list;
    list.setColumnCount(LastColumn + 1);
    list.setColumnWidth(OtherColumn, 80);
    new ColumnWidths(&list, {{NamedColumn, 200}});
    QCOMPARE(list.columnWidth(NamedColumn), 200);
    setPoints(list, 15);
    QCOMPARE(list.columnWidth(NamedColumn), 300);
    QCOMPARE(list.columnWidth(OtherColumn), 120);
    setPoints(list, 10);
    QCOMPARE(list.columnWidth(NamedColumn), 200);
    QCOMPARE(list.columnWidth(OtherColumn), 80);
}

void TestColumnWidths::aColumnWidenedByHandStaysWiderWithAnotherFont()
{
    QTreeWidget list;
    list.setColumnCount(LastColumn + 1);
    new ColumnWidths(&list, {{NamedColumn, 200}});
    list.setColumnWidth(NamedColumn, 260);
    setPoints(list, 15);
    QCOMPARE(list.columnWidth(NamedColumn), 390);
}

TESSEL_TEST_MAIN(TestColumnWidths)
#include "tst_columnwidths.moc"
