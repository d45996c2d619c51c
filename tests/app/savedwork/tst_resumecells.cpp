#include "resumecells.h"
#include "testcase.h"

#include <QTest>

class TestResumeCells : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreWrittenInListOrder();
    void textReadsAsCells_data();
    void textReadsAsCells();
    void everyCellOfTheGridComesBack();
};

void TestResumeCells::cellsAreWrittenInListOrder()
{
    QCOMPARE(writeCells({{0, 1}, {2, 3}}), QStringLiteral("{0,1}/{2,3}"));
    QCOMPARE(writeCells({{7, 0}}), QStringLiteral("{7,0}"));
    QCOMPARE(writeCells({}), QString());
}

void TestResumeCells::textReadsAsCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QPoint>>("cells");
    const auto row = [](const char* text, const QList<QPoint>& cells) {
        QTest::newRow(text) << QString::fromLatin1(text) << cells;
    };
    row("{0,1}/{2,3}", {{0, 1}, {2, 3}});
    row("{0,1}//{x,3}/{4,5}", {{0, 1}, {4, 5}});
    row("{2,3}/{0,1}", {{2, 3}, {0, 1}});
    row("", {});
    row("/", {});
    row("{", {});
    row("}", {});
    row("{}", {});
    row("{,}", {});
    row("{1}", {});
    row("{1,2,3}/{4,4}", {{4, 4}});
    row("{1,2", {});
    row("1,2}", {});
    row("1,2", {});
    row("x{1,2}", {});
    row("{{1,2}}", {});
    row("{1.5,2}", {});
    row("{99999999999,2}", {});
    // Data from outside: what is not on the grid, or there already, is no cell of a room.
    row("{-1,0}/{0,-1}/{8,0}/{0,8}/{7,7}", {{7, 7}});
    row("{2147483647,2147483647}/{-2147483648,0}/{0,0}", {{0, 0}});
    row("{1,1}/{2,2}/{1,1}", {{1, 1}, {2, 2}});
}

void TestResumeCells::textReadsAsCells()
{
    QFETCH(const QString, text);
    QTEST(readCells(text), "cells");
}

void TestResumeCells::everyCellOfTheGridComesBack()
{
    QList<QPoint> cells;
    for (int x = 0; x < 8; ++x) {
        for (int y = 0; y < 8; ++y) {
            cells.append({x, y});
        }
    }
    QCOMPARE(readCells(writeCells(cells)), cells);
}

TESSEL_TEST_MAIN(TestResumeCells)
#include "tst_resumecells.moc"
