#include "boundedxml.h"
#include "testcase.h"

#include <QTest>

namespace {

/// The element names of a text in the order in which they are entered, "!" for a damaged text.
QStringList names(const QString& text)
{
    BoundedXml xml(text);
    QStringList found;
    int open = 0;
    while (true) {
        if (xml.enterChild()) {
            ++open;
            found.append(xml.tag().toString());
        } else if (--open <= 0) {
            break;
        }
    }
    if (!xml.finish()) {
        found.append(QStringLiteral("!"));
    }
    return found;
}

bool isSound(const QString& text)
{
    return BoundedXml(text).finish();
}

QString nested(int depth)
{
    return QStringLiteral("<a>").repeated(depth) + QStringLiteral("</a>").repeated(depth);
}

QString withAttributes(int count)
{
    QString text = QStringLiteral("<a");
    for (int number = 0; number < count; ++number) {
        text += QStringLiteral(" a%1 =\n'x'").arg(number);
    }
    return text + QStringLiteral("/>");
}

} // namespace

class TestBoundedXml : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void elementsAreEnteredInOrder();
    void leavingPassesOverWhatIsInside();
    void attributesAreThoseOfTheElementEnteredLast();
    void damagedTextIsNotSound_data();
    void damagedTextIsNotSound();
    void documentTypesAreRefused_data();
    void documentTypesAreRefused();
    void nestingIsBounded();
    void attributesPerElementAreBounded();
    void manyElementsOfFewAttributesAreFine();
    void noValueHidesTooManyAttributes_data();
    void noValueHidesTooManyAttributes();
    void whatOnlyLooksLikeAttributesIsFine_data();
    void whatOnlyLooksLikeAttributesIsFine();
    void prefixesNeedNoDeclaration();
};

void TestBoundedXml::elementsAreEnteredInOrder()
{
    QCOMPARE(names(QStringLiteral("<a>text<b/><!-- c --><c><d/></c></a>")),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                          QStringLiteral("d")}));
    QCOMPARE(names(QStringLiteral("<a><b></a>")),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("!")}));
}

void TestBoundedXml::leavingPassesOverWhatIsInside()
{
    BoundedXml xml(QStringLiteral("<a><b><x><y/></x><x/></b><c/></a>"));
    QVERIFY(xml.enterChild() && xml.enterChild());
    QCOMPARE(xml.tag(), QStringLiteral("b"));
    xml.leave();
    QVERIFY(xml.enterChild());
    QCOMPARE(xml.tag(), QStringLiteral("c"));
    xml.leave();
    QVERIFY(!xml.enterChild());
    QVERIFY(xml.finish());
}

void TestBoundedXml::attributesAreThoseOfTheElementEnteredLast()
{
    BoundedXml xml(QStringLiteral("<a k='1'><b k='2'/></a>"));
    QVERIFY(xml.enterChild());
    QCOMPARE(xml.attributes().value(QLatin1String("k")), QStringLiteral("1"));
    QVERIFY(xml.enterChild());
    QCOMPARE(xml.attributes().value(QLatin1String("k")), QStringLiteral("2"));
}

void TestBoundedXml::damagedTextIsNotSound_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* text) { QTest::newRow(text) << QString::fromLatin1(text); };
    row("");
    row(" ");
    row("text");
    row("<a>");
    row("<a");
    row("</a>");
    row("<a></b>");
    row("<a/><b/>");
    row("<a/>x");
    row("<a k='1' k='2'/>");
    row("<a k=1/>");
    row("<a k='<'/>");
    row("<a>&unknown;</a>");
    row("<a>&#0;</a>");
    row("<a><!-- </a>");
}

void TestBoundedXml::damagedTextIsNotSound()
{
    QFETCH(const QString, text);
    QVERIFY(!isSound(text));
}

void TestBoundedXml::documentTypesAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("harmless") << QStringLiteral("<!DOCTYPE a><a/>");
    QTest::newRow("after a declaration")
        << QStringLiteral("<?xml version='1.0'?>\n<!DOCTYPE a []>\n<a/>");
    QString bomb = QStringLiteral("<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxx'>");
    for (int level = 1; level < 30; ++level) {
        bomb += QStringLiteral("<!ENTITY e%1 '").arg(level) +
                QStringLiteral("&e%1;").arg(level - 1).repeated(10) + QStringLiteral("'>");
    }
    QTest::newRow("entities that double up") << bomb + QStringLiteral("]><a k='&e29;'>&e29;</a>");
}

void TestBoundedXml::documentTypesAreRefused()
{
    QFETCH(const QString, text);
    QVERIFY(!isSound(text));
    BoundedXml xml(text);
    QVERIFY(!xml.enterChild());
}

void TestBoundedXml::nestingIsBounded()
{
    QVERIFY(isSound(nested(16)));
    QVERIFY(!isSound(nested(17)));
    QVERIFY(!isSound(nested(1'000'000)));
    QVERIFY(!isSound(QStringLiteral("<a>").repeated(1'000'000)));
}

void TestBoundedXml::attributesPerElementAreBounded()
{
    QVERIFY(isSound(withAttributes(256)));
    QVERIFY(!isSound(withAttributes(257)));
    QVERIFY(!isSound(withAttributes(300'000)));
}

void TestBoundedXml::manyElementsOfFewAttributesAreFine()
{
    QVERIFY(isSound(QStringLiteral("<a>") + QStringLiteral("<b k='1' l='2'/>").repeated(1000) +
                    QStringLiteral("</a>")));
}

void TestBoundedXml::noValueHidesTooManyAttributes_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("nothing") << QString();
    QTest::newRow("the other quote") << QStringLiteral("k='\"' l=\"'\"");
    QTest::newRow("an end of the element") << QStringLiteral("k='/>'");
    QTest::newRow("no blank between") << QStringLiteral("k='1'l=\"2\"");
}

void TestBoundedXml::noValueHidesTooManyAttributes()
{
    QFETCH(const QString, before);
    const auto text = [&before](int more) {
        QString attributes;
        for (int number = 0; number < more; ++number) {
            attributes += QStringLiteral(" a%1='x'").arg(number);
        }
        return QStringLiteral("<!-- ' --><a><?b ' ?>'<c %1%2/></a>").arg(before, attributes);
    };
    QCOMPARE(BoundedXml(text(256)).enterChild(), before.isEmpty());
    QVERIFY(!BoundedXml(text(257)).enterChild());
    QVERIFY(!BoundedXml(text(300'000)).enterChild());
}

void TestBoundedXml::whatOnlyLooksLikeAttributesIsFine_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("lookalike");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* name, const char* before, const char* lookalike,
                        const char* after) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(lookalike)
                            << QString::fromLatin1(after);
    };
    row("equals signs in a value", "<a k=\"", "= =&quot;", "\"/>");
    row("apostrophes between quotes", "<a k=\"", "a='x' ", "\"/>");
    row("quotes between apostrophes", "<a k='", "a=\"x\" ", "'/>");
    row("text", "<a>", "a='x' \"", "</a>");
    row("a comment", "<a><!-- ", "a='x' \"", " --></a>");
    row("an instruction", "<a><?b ", "a='x' \"", " ?></a>");
    row("an unread section", "<a><![CDATA[", "a='x' \"", "]]></a>");
}

void TestBoundedXml::whatOnlyLooksLikeAttributesIsFine()
{
    QFETCH(const QString, before);
    QFETCH(const QString, lookalike);
    QFETCH(const QString, after);
    QVERIFY(isSound(before + lookalike.repeated(1000) + after));
}

void TestBoundedXml::prefixesNeedNoDeclaration()
{
    QCOMPARE(names(QStringLiteral("<x:a/>")), QStringList{QStringLiteral("x:a")});
}

TESSEL_TEST_MAIN(TestBoundedXml)
#include "tst_boundedxml.moc"
