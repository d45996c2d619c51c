#include "commandrun.h"
#include "halljson.h"
#include "hallrecord.h"
#include "recordhtml.h"
#include "recordmarkup.h"
#include "testcase.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDomDocument>
#include <QImage>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace {

/// The page as XML: whatever stands open is closed, but for the elements that never are.
QDomDocument parsed(QString html)
{
    html.remove(QStringLiteral("<!DOCTYPE html>\n"));
    html.replace(QRegularExpression(QStringLiteral("<(img|meta|br)([^>]*)>")),
                 QStringLiteral("<\\1\\2/>"));
    QDomDocument page;
    QString fault;
    if (!page.setContent(html, &fault)) {
        QTest::qFail(qPrintable(fault), __FILE__, __LINE__);
    }
    return page;
}

QStringList textsOf(const QDomDocument& page, const char* tag)
{
    QStringList texts;
    const QDomNodeList elements = page.elementsByTagName(QLatin1String(tag));
    for (int index = 0; index < elements.size(); ++index) {
        texts.append(elements.at(index).toElement().text().simplified());
    }
    return texts;
}

/// Lays a page out as the PDF does on the narrowest paper.
void layOut(QTextDocument& document, const QString& html, QPdfWriter& writer)
{
    writer.setResolution(600);
    writer.setPageMargins(QMarginsF(18, 15, 15, 12), QPageLayout::Millimeter);
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&writer);
    document.setHtml(html);
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        QTextFrameFormat format = frame->frameFormat();
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        frame->setFrameFormat(format);
    }
    document.setTextWidth(writer.width());
}

/// The columns of a table whose titles need more than a line.
QStringList wrappedTitles(const QTextTable& table)
{
    QStringList titles;
    const bool hasTitles = table.format().headerRowCount() > 0;
    for (int column = 0; hasTitles && column < table.columns(); ++column) {
        const QTextBlock title = table.cellAt(0, column).firstCursorPosition().block();
        if (title.layout()->lineCount() > 1) {
            titles.append(title.text());
        }
    }
    return titles;
}

} // namespace

/// The record of a hall as a page.
class TestRecordHtml : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thePageSaysWhatItIs();
    void nothingOutsideIsReferredTo();
    void headingsLeadThroughRoomsAndLayouts();
    void everyColumnAndRowHasItsTitle();
    void aDeviceHasItsFirmwareOrIsNotRecorded();
    void noTitleOfAColumnNeedsTwoLines();
    void picturesAreSharpAndSaidInWords();
    void presetsUsesAndRemovedDevicesAreNamed();
    void brokenLimitsAreToldFirst();
    void aWalkIsShownWithItsFailures();
    void theWalkOfAnotherHallIsNotShown();
    void namesActOnNothing();
    void aHallWithNothingInItHasARecord();

private:
    void read(const QByteArray& text);
    QString html() const { return recordHtml(m_record); }
    WalkReading walkOf(int preset) const;

    std::unique_ptr<HallDocument> m_hall;
    HallRecord m_record;
};

void TestRecordHtml::read(const QByteArray& text)
{
    m_hall = readHallJson(text).hall;
    QVERIFY(m_hall != nullptr);
    m_record = {m_hall.get(),
                QStringLiteral("hall.tessel"),
                QDate(2026, 11, 22),
                QStringLiteral("today"),
                {},
                {},
                QPageSize::A4};
}

void TestRecordHtml::init()
{
    TestCase::init();
    read(sampleHallText());
}

/// A walk in which every hub told this preset for every layout.
WalkReading TestRecordHtml::walkOf(int preset) const
{
    WalkReading walk;
    walk.begun = QDateTime(QDate(2026, 11, 20), QTime(9, 5));
    for (int number = 1; number <= 4; ++number) {
        walk.hubs.append({QStringLiteral("127.0.1.%1").arg(number), {}, {}, 1, 1, number != 4});
    }
    for (const SceneInfo& layout : m_hall->data().scenes) {
        WalkedLayout walked{layout.number, layout.roomGroup, true, {}};
        for (const WalkedHub& hub : std::as_const(walk.hubs)) {
            walked.presets.insert(hub.address, preset);
        }
        walk.layouts.append(walked);
    }
    return walk;
}

void TestRecordHtml::thePageSaysWhatItIs()
{
    const QDomDocument page = parsed(html());
    QVERIFY(html().startsWith(u"<!DOCTYPE html>\n"));
    QCOMPARE(page.documentElement().attribute(QStringLiteral("lang")), QStringLiteral("en"));
    QCOMPARE(textsOf(page, "title"), QStringList(QStringLiteral("Hall record: hall.tessel")));
    QVERIFY(html().contains(u"<meta charset=\"utf-8\">"));
    QVERIFY(textsOf(page, "td").contains(QStringLiteral("2026-11-22, today")));
    QVERIFY(html().contains(u"size: A4;"));
    m_record.paper = QPageSize::Letter;
    QVERIFY(html().contains(u"size: letter;"));
}

void TestRecordHtml::nothingOutsideIsReferredTo()
{
    const QString page = html();
    for (const QString& source :
         page.split(QRegularExpression(QStringLiteral("(src|href)="))).mid(1)) {
        QVERIFY2(source.startsWith(u"\"data:image/png;base64,"), qPrintable(source.left(40)));
    }
    QVERIFY(!page.contains(u"url("));
    QVERIFY(!page.contains(u"@import"));
    QVERIFY(!page.contains(u"<script"));
    QVERIFY(!page.contains(u"<link"));
}

void TestRecordHtml::headingsLeadThroughRoomsAndLayouts()
{
    const QDomDocument page = parsed(html());
    QCOMPARE(textsOf(page, "h2"),
             QStringList({QStringLiteral("The hall"), QStringLiteral("Devices"),
                          QStringLiteral("Layouts")}));
    QCOMPARE(
        textsOf(page, "h3"),
        QStringList({QStringLiteral("Room 1"), QStringLiteral("Room 2"), QStringLiteral("Room 3"),
                     QStringLiteral("Room 4"), QStringLiteral("In no room"),
                     QStringLiteral("Layout 1: 1+2/3/4"), QStringLiteral("Layout 2: 1/2/3/4")}));
    QCOMPARE(textsOf(page, "h4").size(), 7);
}

void TestRecordHtml::everyColumnAndRowHasItsTitle()
{
    const QDomDocument page = parsed(html());
    const QDomNodeList titles = page.elementsByTagName(QStringLiteral("th"));
    QVERIFY(!titles.isEmpty());
    for (int index = 0; index < titles.size(); ++index) {
        const QDomElement title = titles.at(index).toElement();
        const bool isOfColumn = title.parentNode().parentNode().nodeName() == u"thead";
        QCOMPARE(title.attribute(QStringLiteral("scope")),
                 isOfColumn ? QStringLiteral("col") : QStringLiteral("row"));
    }
    const QDomNodeList rows = page.elementsByTagName(QStringLiteral("tr"));
    for (int index = 0; index < rows.size(); ++index) {
        QVERIFY(!rows.at(index).firstChildElement(QStringLiteral("th")).isNull());
    }
}

void TestRecordHtml::aDeviceHasItsFirmwareOrIsNotRecorded()
{
    QCOMPARE(textsOf(parsed(html()), "td").count(QStringLiteral("not recorded")), 8 * 2 + 1);
    m_record.found.emplace(m_hall->data(), QList<FoundDevice>{{QStringLiteral("127.0.1.1"),
                                                               QStringLiteral("02:1A:FF:00:00:01"),
                                                               QStringLiteral("2.1.7"),
                                                               QStringLiteral("Y77"),
                                                               {}}});
    const QStringList cells = textsOf(parsed(html()), "td");
    QCOMPARE(cells.count(QStringLiteral("not recorded")), 7 * 2 + 1);
    QVERIFY(cells.contains(QStringLiteral("2.1.7")));
    QVERIFY(cells.contains(QStringLiteral("Y77")));
    QCOMPARE(textsOf(parsed(html()), "li").size(), 6); // whoever did not answer
}

void TestRecordHtml::noTitleOfAColumnNeedsTwoLines()
{
    QBuffer pdf;
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    QPdfWriter writer(&pdf);
    QTextDocument document;
    layOut(document, html(), writer);
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (const auto* table = qobject_cast<QTextTable*>(frame)) {
            QCOMPARE(wrappedTitles(*table).join(u'|'), QString());
        }
    }
}

void TestRecordHtml::picturesAreSharpAndSaidInWords()
{
    const QDomDocument page = parsed(html());
    const QDomNodeList pictures = page.elementsByTagName(QStringLiteral("img"));
    QCOMPARE(pictures.size(), 1 + 4 + 2);
    for (int index = 0; index < pictures.size(); ++index) {
        const QDomElement picture = pictures.at(index).toElement();
        const QByteArray bytes = QByteArray::fromBase64(
            picture.attribute(QStringLiteral("src")).section(u',', 1).toLatin1());
        const QImage image = QImage::fromData(bytes, "PNG");
        QVERIFY(image.width() >= 3 * picture.attribute(QStringLiteral("width")).toInt());
        QVERIFY(!picture.attribute(QStringLiteral("alt")).isEmpty());
    }
    QCOMPARE(pictures.at(5).toElement().attribute(QStringLiteral("alt")),
             QStringLiteral("The rooms as layout 1 combines them: 1+2/3/4"));
}

void TestRecordHtml::presetsUsesAndRemovedDevicesAreNamed()
{
    const QStringList cells = textsOf(parsed(html()), "td");
    QVERIFY(cells.contains(QStringLiteral("Big \"hall\"")));
    QVERIFY(cells.contains(QStringLiteral("without a name")));
    QCOMPARE(cells.count(QStringLiteral("removed")), 1);
    QCOMPARE(cells.count(QStringLiteral("right")), 1);
    QCOMPARE(cells.count(QStringLiteral("left")), 3);
}

void TestRecordHtml::brokenLimitsAreToldFirst()
{
    read(changed(sampleHallText(), "\"removed\": [\"127.0.1.2\"], ", ""));
    const QDomDocument page = parsed(html());
    QCOMPARE(textsOf(page, "h2").first(), QStringLiteral("Not as it should be"));
    QCOMPARE(textsOf(page, "li"),
             QStringList(QStringLiteral("layout 1, room 1+2: 2 PX-HBs; 1 is possible")));
    QCOMPARE(textsOf(page, "strong").first(), QStringLiteral("2 PX-HBs; 1 is possible"));
}

void TestRecordHtml::aWalkIsShownWithItsFailures()
{
    m_record.walk.emplace(m_hall->data(), walkOf(1));
    const QDomDocument page = parsed(html());
    const QStringList cells = textsOf(page, "td");
    QCOMPARE(cells.count(QStringLiteral("ok")), 4);
    QCOMPARE(cells.count(QStringLiteral("on 1")), 4);
    QVERIFY(cells.contains(QStringLiteral("not everything was as it should be; see \"The walk\"")));
    QVERIFY(html().contains(u"Begun 2026-11-20 at 09:05."));
    const QStringList items = textsOf(page, "li");
    QCOMPARE(items.mid(0, 2),
             QStringList({QStringLiteral("the walk: not every layout was read back from every hub"),
                          QStringLiteral("the walk: not every hub was put back afterwards")}));
    QCOMPARE(items.size(), 2 + 1); // the hub that is not back
    QCOMPARE(textsOf(page, "h2").first(), QStringLiteral("Not as it should be"));
}

void TestRecordHtml::theWalkOfAnotherHallIsNotShown()
{
    WalkReading walk = walkOf(1);
    for (WalkedLayout& layout : walk.layouts) {
        layout.rooms = QStringLiteral("1/2");
    }
    m_record.walk.emplace(m_hall->data(), walk);
    const QDomDocument page = parsed(html());
    QVERIFY(!textsOf(page, "h2").contains(QStringLiteral("The walk")));
    QVERIFY(textsOf(page, "li").contains(QStringLiteral("the walk was one through another hall")));
    QVERIFY(!textsOf(page, "td").contains(QStringLiteral("ok")));
}

void TestRecordHtml::namesActOnNothing()
{
    using RecordMarkup::escaped;
    QCOMPARE(escaped(QStringLiteral("<b>&amp;\"")), QStringLiteral("&lt;b&gt;&amp;amp;&quot;"));
    QCOMPARE(escaped(QStringLiteral("a\u202eb\u0007c\u2067")), QStringLiteral("a?b?c?"));
    const QString family = QStringLiteral("\U0001F468\u200D\U0001F469 שלום");
    QCOMPARE(escaped(family), family);
    QCOMPARE(escaped(QString(QChar(0xd83d))), QStringLiteral("?"));
    read(changed(sampleHallText(), "\"Hub-1\", \"renamed\": true",
                 "\"</bdi></table><script>x</script>\""));
    QVERIFY(
        textsOf(parsed(html()), "th").contains(QStringLiteral("</bdi></table><script>x</script>")));
    QVERIFY(!html().contains(u"<script"));
}

void TestRecordHtml::aHallWithNothingInItHasARecord()
{
    read("{}");
    const QStringList texts = textsOf(parsed(html()), "p");
    QCOMPARE(texts, QStringList({QStringLiteral("No rooms are drawn."),
                                 QStringLiteral("There are none.")}));
}

TESSEL_TEST_MAIN(TestRecordHtml)
#include "tst_recordhtml.moc"
