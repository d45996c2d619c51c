#include "storagename.h"
#include "testcase.h"

#include <QTest>

class TestStorageName : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nameInTheHeader_data();
    void nameInTheHeader();
};

void TestStorageName::nameInTheHeader_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* line, const char* expected) {
        QTest::newRow(name) << QStringLiteral("HTTP/1.1 200 OK\r\n") + QString::fromUtf8(line)
                            << QString::fromUtf8(expected);
    };
    row("up to the first dot", "Content-Disposition: attachment; filename=\"hub01.xml\"", "hub01");
    row("of several dots the first", "Content-Disposition: filename=\"a.b.xml\"", "a");
    row("without a dot", "Content-Disposition: filename=\"hub01\"", "hub01");
    row("blanks and letters beyond ASCII", "Content-Disposition: filename=\"Hub Ä.xml\"", "Hub Ä");
    row("the last line counts",
        "Content-Disposition: filename=\"a.xml\"\r\nX: 1\r\nContent-Disposition: filename=\"b\"",
        "b");
    row("the last line counts even without a name",
        "Content-Disposition: filename=\"a.xml\"\r\nContent-Disposition: attachment", "");
    row("the first file name of the line counts",
        "Content-Disposition: filename=\"a.xml\"; filename=\"b.xml\"", "a");
    row("text behind the name is no part of it", "Content-Disposition: filename=\"a\"; size=1",
        "a");
    row("no such line", "Content-Type: text/xml", "");
    row("the case of the line's name counts", "content-disposition: filename=\"a.xml\"", "");
    row("no file name", "Content-Disposition: attachment", "");
    row("no opening quote", "Content-Disposition: filename=a.xml", "");
    row("an opening quote further on", "Content-Disposition: filename=a; x=\"b\"", "");
    row("no closing quote", "Content-Disposition: filename=\"a.xml", "");
    row("an empty name", "Content-Disposition: filename=\"\"", "");
    row("a name that begins with a dot", "Content-Disposition: filename=\".xml\"", "");
    row("nothing", "", "");
}

void TestStorageName::nameInTheHeader()
{
    QFETCH(const QString, header);
    QFETCH(const QString, expected);
    const auto name = storageName(header);
    QCOMPARE(name.has_value(), !expected.isEmpty());
    QCOMPARE(name.value_or(QString()), expected);
}

TESSEL_TEST_MAIN(TestStorageName)
#include "tst_storagename.moc"
