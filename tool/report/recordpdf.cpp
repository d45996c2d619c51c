#include "recordpdf.h"

#include "pdfdate.h"
#include "recordstrips.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace {

constexpr int dotsPerInch = 600;
constexpr qreal scale = dotsPerInch / 96.0;      // of a pixel of a screen
constexpr QMarginsF pageMargins(18, 15, 15, 12); // in millimetres; to the left there are holes
constexpr int footHeight = dotsPerInch * 2 / 5;
constexpr int footPoints = 8;

/// Fonts are written in the order of a hash table, which differs from run to run unless it is told
/// not to.
class FixedHashOrder
{
public:
    FixedHashOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    FixedHashOrder(const FixedHashOrder&) = delete;
    FixedHashOrder& operator=(const FixedHashOrder&) = delete;
    FixedHashOrder(FixedHashOrder&&) = delete;
    FixedHashOrder& operator=(FixedHashOrder&&) = delete;
    ~FixedHashOrder() { QHashSeed::resetRandomGlobalSeed(); }
};

void setUpWriter(QPdfWriter& writer, const PdfFrame& frame)
{
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(frame.paper));
    writer.setPageMargins(pageMargins, QPageLayout::Millimeter);
    writer.setTitle(frame.title);
    writer.setCreator(QStringLiteral("tesselctl"));
}

/// What the style sheet says of tables and a text document does not understand.
void styleTables(QTextDocument& document)
{
    constexpr qreal belowTable = 12;
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            format.setCellSpacing(0);
            format.setMargin(0);
            format.setBottomMargin(belowTable);
            table->setFormat(format);
        }
    }
}

/// Lays the text out for the paper, as one page without end.
void setUpDocument(QTextDocument& document, const QString& html, QPdfWriter& writer)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document.setDefaultTextOption(option);
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&writer);
    document.setHtml(withWholeMacAddresses(html));
    styleTables(document);
    document.setTextWidth(writer.width());
}

/// Paints the pages of a document one after the other.
class PagePainter
{
public:
    PagePainter(QPdfWriter& writer, const QTextDocument& document, const PdfFrame& frame)
        : m_writer(writer)
        , m_layout(*document.documentLayout())
        , m_frame(frame)
        , m_painter(&writer)
    {
        m_painter.setRenderHint(QPainter::LosslessImageRendering);
    }

    void paint(const QList<PageSlice>& slices)
    {
        for (qsizetype index = 0; index < slices.size(); ++index) {
            if (index > 0) {
                m_writer.newPage();
            }
            const PageSlice& slice = slices.at(index);
            const qreal bodyTop = slice.head ? slice.head->height() : 0;
            if (slice.head) {
                paintSpan(*slice.head, 0);
            }
            paintSpan(slice.body, bodyTop);
            paintFoot(QStringLiteral("Page %1 of %2").arg(index + 1).arg(slices.size()));
        }
    }

private:
    /// Paints a piece of the document at a height of the page.
    void paintSpan(const Span& span, qreal top)
    {
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(0, span.top, m_writer.width(), span.height());
        context.palette.setColor(QPalette::Text, Qt::black);
        m_painter.save();
        m_painter.translate(0, top - span.top);
        m_painter.setClipRect(context.clip);
        m_layout.draw(&m_painter, context);
        m_painter.restore();
    }

    /// The name gives way to the page's number.
    void paintFoot(const QString& number)
    {
        QFont font(QStringLiteral("sans-serif"));
        font.setPointSize(footPoints);
        m_painter.setFont(font);
        m_painter.setPen(Qt::black);
        const QFontMetrics metrics(font, &m_writer);
        const QRect line(0, m_writer.height() - metrics.height(), m_writer.width(),
                         metrics.height());
        const int room = line.width() - 2 * metrics.horizontalAdvance(number);
        m_painter.drawText(line, Qt::AlignLeft,
                           metrics.elidedText(m_frame.name, Qt::ElideMiddle, room));
        m_painter.drawText(line, Qt::AlignRight, number);
    }

    QPdfWriter& m_writer;
    QAbstractTextDocumentLayout& m_layout;
    const PdfFrame& m_frame;
    QPainter m_painter;
};

} // namespace

QByteArray recordPdf(const QString& html, const PdfFrame& frame)
{
    const FixedHashOrder order;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        setUpWriter(writer, frame);
        QTextDocument document;
        setUpDocument(document, html, writer);
        PagePainter(writer, document, frame)
            .paint(slicedIntoPages(stripsOf(document, scale), writer.height() - footHeight));
    }
    return withCreationDate(bytes, frame.date);
}

QString withWholeMacAddresses(QString html)
{
    static const QRegularExpression inside(
        QStringLiteral("\\b([0-9A-Fa-f]{2}:)(?=[0-9A-Fa-f]{2}(:[0-9A-Fa-f]{2}){0,4}\\b)"));
    constexpr char16_t wordJoiner = 0x2060;
    return html.replace(inside, QStringLiteral("\\1") + QChar(wordJoiner));
}
