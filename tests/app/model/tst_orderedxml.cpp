#include "orderedxml.h"
#include "testcase.h"

#include <QDomDocument>
#include <QTest>

class TestOrderedXml : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void attributesKeepTheOrderInWhichTheyWereGiven();
    void anElementWithoutAttributesIsClosedInItself();
    void everyTextReadsBackEqual_data();
    void everyTextReadsBackEqual();
    void whatXmlCannotCarryIsLeftOut();
};

void TestOrderedXml::attributesKeepTheOrderInWhichTheyWereGiven()
{
    OrderedXml xml;
    xml.start(QStringLiteral("root"));
    xml.start(QStringLiteral("child"));
    xml.attribute(QStringLiteral("b"), QStringLiteral("1"));
    xml.attribute(QStringLiteral("a"), 2);
    xml.end();
    xml.end();
    QCOMPARE(xml.text(), QStringLiteral("<root>\n <child b=\"1\" a=\"2\"/>\n</root>\n"));
}

void TestOrderedXml::anElementWithoutAttributesIsClosedInItself()
{
    OrderedXml xml;
    xml.start(QStringLiteral("root"));
    xml.start(QStringLiteral("child"));
    xml.end();
    xml.end();
    QCOMPARE(xml.text(), QStringLiteral("<root>\n <child/>\n</root>\n"));
}

void TestOrderedXml::everyTextReadsBackEqual_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("umlaut") << QStringLiteral("Ä ö ß");
    QTest::newRow("quotes") << QStringLiteral(R"(say "x" and 'y')");
    QTest::newRow("markup") << QStringLiteral("<a> & </a> ]]> &amp;");
    QTest::newRow("beyond the base plane") << QStringLiteral("\U0001F3A4 mic");
    QTest::newRow("white space") << QStringLiteral(" a\tb\nc\rd ");
    QTest::newRow("percent") << QStringLiteral("50%2 %1");
}

void TestOrderedXml::everyTextReadsBackEqual()
{
    QFETCH(const QString, text);
    OrderedXml xml;
    xml.start(QStringLiteral("root"));
    xml.attribute(QStringLiteral("value"), text);
    xml.end();
    QDomDocument read;
    QVERIFY(read.setContent(xml.text()));
    QCOMPARE(read.documentElement().attribute(QStringLiteral("value")), text);
}

void TestOrderedXml::whatXmlCannotCarryIsLeftOut()
{
    QString text = QStringLiteral("a?b?c?d?e");
    text[1] = QChar(0x0001);
    text[3] = QChar(0xD800);
    text[5] = QChar(0xDC00);
    text[7] = QChar(0xFFFF);
    OrderedXml xml;
    xml.start(QStringLiteral("root"));
    xml.attribute(QStringLiteral("value"), text);
    xml.end();
    QDomDocument read;
    QVERIFY(read.setContent(xml.text()));
    QCOMPARE(read.documentElement().attribute(QStringLiteral("value")), QStringLiteral("abcde"));
}

TESSEL_TEST_MAIN(TestOrderedXml)
#include "tst_orderedxml.moc"
