#include "recordpdf.h"
#include "recordstrips.h"
#include "testcase.h"

#include <QAbstractTextDocumentLayout>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

namespace {

const PdfFrame frame{QStringLiteral("A title"), QStringLiteral("hall.tessel"), QDate(2026, 11, 22),
                     QPageSize::A4};

QString longTable(int rows)
{
    QString html = QStringLiteral("<h2>Devices</h2><table><thead><tr><th>Name</th></tr></thead>");
    for (int row = 0; row < rows; ++row) {
        html += QStringLiteral("<tr><td>Device %1</td></tr>").arg(row);
    }
    return html + QStringLiteral("</table>");
}

/// The pieces of a text from top to bottom: "+" for one that stays with the next, "-" for others.
QString keptStrips(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    document.setTextWidth(500);
    QString kept;
    for (const Strip& strip : stripsOf(document, 1)) {
        kept += strip.isKeptWithNext ? u'+' : u'-';
    }
    return kept;
}

/// Every page has one such object.
qsizetype pageCount(const QByteArray& pdf)
{
    return pdf.count("/Type /Page\n");
}

} // namespace

/// The record of a hall as a PDF.
class TestRecordPdf : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSameTextGivesTheSameBytes();
    void theDateIsTheRecordsAndNotTodays();
    void thePaperIsTheOneAskedFor();
    void aLongTextTakesManyPages();
    void aHeadingIsKeptWithItsTable();
    void allThatLeadsUpToATableIsKeptWithIt();
    void whatLeadsUpToAListIsKeptWithIt();
    void rowsAreStripsAndRepeatTheTitles();
    void aMacAddressStaysInOneLine();
    void anEmptyTextIsAPage();
};

void TestRecordPdf::theSameTextGivesTheSameBytes()
{
    const QString html = QStringLiteral("<h1>A</h1><p>plain <b>bold</b> <i>slanted</i></p>");
    const QByteArray first = recordPdf(html, frame);
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() != second);
    QCOMPARE(recordPdf(html, frame), first);
}

void TestRecordPdf::theDateIsTheRecordsAndNotTodays()
{
    const QByteArray pdf = recordPdf(QStringLiteral("<p>text</p>"), frame);
    QVERIFY(pdf.contains("/CreationDate (D:20261122000000Z)"));
    QCOMPARE(pdf.count("/CreationDate"), 1);
}

void TestRecordPdf::thePaperIsTheOneAskedFor()
{
    QVERIFY(recordPdf(QStringLiteral("<p>text</p>"), frame)
                .contains("/MediaBox [0 0 595.000000 842.000000]"));
    PdfFrame letter = frame;
    letter.paper = QPageSize::Letter;
    QVERIFY(recordPdf(QStringLiteral("<p>text</p>"), letter)
                .contains("/MediaBox [0 0 612.000000 792.000000]"));
}

void TestRecordPdf::aLongTextTakesManyPages()
{
    QCOMPARE(pageCount(recordPdf(longTable(10), frame)), 1);
    const qsizetype pages = pageCount(recordPdf(longTable(300), frame));
    QVERIFY2(pages >= 5 && pages <= 9, qPrintable(QString::number(pages)));
}

void TestRecordPdf::aHeadingIsKeptWithItsTable()
{
    QTextDocument document;
    document.setHtml(QStringLiteral("<p>alone</p><h2>Devices</h2><p>counts</p>") +
                     longTable(3).section(u'>', 2));
    document.setTextWidth(500);
    const QList<Strip> strips = stripsOf(document, 1);
    QCOMPARE(strips.size(), 3 + 3);
    QVERIFY(!strips.at(0).isKeptWithNext); // a paragraph above a heading
    QVERIFY(strips.at(1).isKeptWithNext);  // the heading
    QVERIFY(strips.at(2).isKeptWithNext);  // the paragraph above the table
    QVERIFY(strips.at(3).isKeptWithNext);  // the first row
    QVERIFY(strips.at(4).isKeptWithNext);  // the last row but one
    QVERIFY(!strips.at(5).isKeptWithNext);
}

void TestRecordPdf::allThatLeadsUpToATableIsKeptWithIt()
{
    const QString table = longTable(2).section(u'>', 2);
    QCOMPARE(keptStrips(QStringLiteral("<p>alone</p><h3>Room 1</h3><p>counts</p><p>a breach</p>"
                                       "<p>another breach</p>") +
                        table),
             QStringLiteral("-++++" // the heading, the counts and the breaches
                            "+-"));
    QCOMPARE(keptStrips(table + QStringLiteral("<p>one</p><p>two</p>") + table),
             QStringLiteral("+-"
                            "++" // between the tables
                            "+-"));
}

void TestRecordPdf::whatLeadsUpToAListIsKeptWithIt()
{
    QCOMPARE(keptStrips(longTable(2).section(u'>', 2) +
                        QStringLiteral("<p>Not back:</p><ul><li>one</li><li>two</li></ul>"
                                       "<p>behind</p>")),
             QStringLiteral("+-"
                            "+"  // the paragraph
                            "--" // the list
                            "-"));
}

void TestRecordPdf::rowsAreStripsAndRepeatTheTitles()
{
    QTextDocument document;
    document.setHtml(longTable(5));
    document.setTextWidth(500);
    const QList<Strip> strips = stripsOf(document, 1);
    QCOMPARE(strips.size(), 1 + 5);
    QVERIFY(!strips.at(1).head); // the titles are part of it
    for (qsizetype index = 2; index < strips.size(); ++index) {
        QVERIFY(strips.at(index).head);
        QVERIFY(strips.at(index).head->height() > 0);
        QVERIFY(strips.at(index).head->bottom <= strips.at(2).span.top);
        QVERIFY(strips.at(index).span.top >= strips.at(index - 1).span.bottom);
        QVERIFY(strips.at(index).span.height() > 0);
    }
}

void TestRecordPdf::aMacAddressStaysInOneLine()
{
    const QString text = QStringLiteral("its MAC address 00:A0:DE:10:00:01 is");
    const QChar wordJoiner(0x2060);
    QTextDocument document;
    document.setHtml(withWholeMacAddresses(QStringLiteral("<p>%1</p>").arg(text)));
    QCOMPARE(document.toPlainText().remove(wordJoiner), text);
    for (int width = 130; width < 400; ++width) {
        document.setTextWidth(width);
        document.documentLayout()->documentSize();
        const QTextBlock block = document.begin();
        for (int number = 0; number < block.layout()->lineCount(); ++number) {
            const QTextLine line = block.layout()->lineAt(number);
            const QString part = block.text().mid(line.textStart(), line.textLength()).trimmed();
            QVERIFY2(!part.endsWith(u':') && !part.endsWith(wordJoiner), qPrintable(part));
        }
    }
}

void TestRecordPdf::anEmptyTextIsAPage()
{
    QCOMPARE(pageCount(recordPdf(QString(), frame)), 1);
}

TESSEL_TEST_MAIN(TestRecordPdf)
#include "tst_recordpdf.moc"
