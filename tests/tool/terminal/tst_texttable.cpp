#include "displaywidth.h"
#include "testcase.h"
#include "texttable.h"

#include <QTest>

/// Tables for people.
class TestTextTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsStandUnderTheirHeadings();
    void numbersEndInOneColumn();
    void noLineIsWiderThanTheTable_data();
    void noLineIsWiderThanTheTable();
    void whatIsWrappedIsAllThere();
    void wideLettersTakeTwoColumns();
    void textsActOnNoTerminal();
};

void TestTextTable::columnsStandUnderTheirHeadings()
{
    TextTable table({QStringLiteral("Room"), QStringLiteral("Device")});
    table.addRow({QStringLiteral("1"), QStringLiteral("Hub-1")});
    table.addRow({QStringLiteral("2")});
    QCOMPARE(table.text(), QStringLiteral("Room  Device\n"
                                          "----  ------\n"
                                          "1     Hub-1\n"
                                          "2\n"));
}

void TestTextTable::numbersEndInOneColumn()
{
    TextTable table(2);
    table.alignRight(1);
    table.addRow({QStringLiteral("a"), QStringLiteral("9")});
    table.addRow({QStringLiteral("b"), QStringLiteral("10")});
    QCOMPARE(table.text(), QStringLiteral("a   9\nb  10\n"));
}

void TestTextTable::noLineIsWiderThanTheTable_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<int>("width");
    const QString wide = QStringLiteral("\u4f1a\u8b70\u5ba4").repeated(40);
    QTest::newRow("words") << QStringLiteral("word ").repeated(60) << TextTable::usualWidth;
    QTest::newRow("one long word") << QString(300, u'x') << TextTable::usualWidth;
    QTest::newRow("wide letters") << wide << TextTable::usualWidth;
    QTest::newRow("beyond the basic plane")
        << QStringLiteral("\U0001F3A4").repeated(100) << TextTable::usualWidth;
    QTest::newRow("hardly any room") << wide << 12;
}

void TestTextTable::noLineIsWiderThanTheTable()
{
    QFETCH(const QString, cell);
    QFETCH(const int, width);
    TextTable table({QStringLiteral("A"), QStringLiteral("B")});
    table.addRow({cell, cell});
    for (const QString& line : table.text(width).split(u'\n')) {
        QVERIFY2(displayWidth(line) <= width, qPrintable(line));
    }
}

void TestTextTable::whatIsWrappedIsAllThere()
{
    const QString text = QStringLiteral("the quick brown fox jumps over the lazy dog");
    const QStringList lines = wrapped(text, 10);
    QCOMPARE(lines.join(u' '), text);
    QCOMPARE(wrapped(QStringLiteral("abcdef"), 4),
             QStringList({QStringLiteral("abcd"), QStringLiteral("ef")}));
    QCOMPARE(wrapped(QString(), 4), QStringList(QString()));
}

void TestTextTable::wideLettersTakeTwoColumns()
{
    QCOMPARE(displayWidth(QStringLiteral("abc")), 3);
    QCOMPARE(displayWidth(QStringLiteral("\u4f1a\u8b70")), 4);
    QCOMPARE(displayWidth(QStringLiteral("e\u0301")), 1);
    QCOMPARE(displayWidth(QStringLiteral("\U0001F3A4")), 2);
}

void TestTextTable::textsActOnNoTerminal()
{
    QCOMPARE(printable(QStringLiteral("a\x1b[1mb\nc\u202ed\u2028e")),
             QStringLiteral("a?[1mb?c?d?e"));
    TextTable table(1);
    table.addRow({QStringLiteral("a\rb")});
    QCOMPARE(table.text(), QStringLiteral("a?b\n"));
}

TESSEL_TEST_MAIN(TestTextTable)
#include "tst_texttable.moc"
