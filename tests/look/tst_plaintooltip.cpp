#include "plaintooltip.h"
#include "testcase.h"

#include <QTest>
#include <QTextDocument>

class TestPlainToolTip : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatLooksFormattedIsReadAsItIs_data();
    void whatLooksFormattedIsReadAsItIs();
    void anyOtherTextStaysAsItIs_data();
    void anyOtherTextStaysAsItIs();
};

void TestPlainToolTip::whatLooksFormattedIsReadAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("bold") << QStringLiteral("Hall <b>West</b>");
    QTest::newRow("picture") << QStringLiteral("<img src=\"file:///x.png\">");
    QTest::newRow("entity") << QStringLiteral("a &lt; b");
    QTest::newRow("document") << QStringLiteral("<!DOCTYPE html>Not found");
    QTest::newRow("lines") << QStringLiteral("<i>One</i>\nTwo & three");
}

void TestPlainToolTip::whatLooksFormattedIsReadAsItIs()
{
    QFETCH(const QString, text);
    const QString tip = plainToolTip(text);
    QVERIFY(Qt::mightBeRichText(tip));
    QTextDocument shown;
    shown.setHtml(tip);
    QCOMPARE(shown.toPlainText(), text);
}

void TestPlainToolTip::anyOtherTextStaysAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("name") << QStringLiteral("PX-HB-1 & Co");
    QTest::newRow("lines") << QStringLiteral("2 < 3\n4 > 1");
}

void TestPlainToolTip::anyOtherTextStaysAsItIs()
{
    QFETCH(const QString, text);
    QCOMPARE(plainToolTip(text), text);
}

TESSEL_TEST_MAIN(TestPlainToolTip)
#include "tst_plaintooltip.moc"
