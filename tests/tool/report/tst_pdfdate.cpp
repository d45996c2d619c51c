#include "pdfdate.h"
#include "testcase.h"

#include <QTest>

namespace {

/// A file of two objects, in the form that counts here, whose table of places is right.
QByteArray smallPdf(const QByteArray& date)
{
    QByteArray pdf = "%PDF-1.4\n";
    const auto place = [&pdf] { return QByteArray::number(pdf.size()).rightJustified(10, '0'); };
    const QByteArray first = place();
    pdf += "1 0 obj\n<<\n/CreationDate (" + date + ")\n>>\nendobj\n";
    const QByteArray second = place();
    pdf += "2 0 obj\n<<\n>>\nendobj\n";
    const QByteArray table = QByteArray::number(pdf.size());
    return pdf + "xref\n0 3\n0000000000 65535 f \n" + first + " 00000 n \n" + second +
           " 00000 n \ntrailer\n<<\n/Size 3\n/Info 1 0 R\n>>\nstartxref\n" + table + " \n%%EOF\n";
}

const QDate day(2026, 11, 22);

} // namespace

/// Files that do not say when they were made.
class TestPdfDate : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDayTakesThePlaceOfTheMoment();
    void aZoneOfAnyLengthGivesTheSameFile();
    void whatIsNoSuchFileIsLeftAsItIs_data();
    void whatIsNoSuchFileIsLeftAsItIs();
};

void TestPdfDate::theDayTakesThePlaceOfTheMoment()
{
    QCOMPARE(withCreationDate(smallPdf("D:20261231235959Z"), day), smallPdf("D:20261122000000Z"));
}

void TestPdfDate::aZoneOfAnyLengthGivesTheSameFile()
{
    QCOMPARE(withCreationDate(smallPdf("D:20261231235959+05'30'"), day),
             smallPdf("D:20261122000000Z"));
    QCOMPARE(withCreationDate(smallPdf("D:2026"), day), smallPdf("D:20261122000000Z"));
}

void TestPdfDate::whatIsNoSuchFileIsLeftAsItIs_data()
{
    QTest::addColumn<QByteArray>("pdf");
    const QByteArray whole = smallPdf("D:20261231235959Z");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no date") << QByteArray(whole).replace("/CreationDate", "/CreationTime");
    QTest::newRow("no end of the date") << QByteArray("/CreationDate (D:2026");
    QTest::newRow("no table") << QByteArray(whole).replace("xref\n0 3", "xraf\n0 3");
    QTest::newRow("a table of another form") << QByteArray(whole).replace(" n \n", " n\n");
    QTest::newRow("a place beyond the end")
        << QByteArray(whole).replace("startxref\n", "startxref\n9999");
}

void TestPdfDate::whatIsNoSuchFileIsLeftAsItIs()
{
    QFETCH(const QByteArray, pdf);
    QCOMPARE(withCreationDate(pdf, day), pdf);
}

TESSEL_TEST_MAIN(TestPdfDate)
#include "tst_pdfdate.moc"
