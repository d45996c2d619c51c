#include "recordstrips.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include <algorithm>

namespace {

/// Collects the pieces from top to bottom.
class Collector
{
public:
    Collector(const QTextDocument& document, qreal scale)
        : m_layout(*document.documentLayout())
        , m_scale(scale)
    {
        const QTextFrame* const root = document.rootFrame();
        for (auto part = root->begin(); part != root->end(); ++part) {
            if (const auto* table = qobject_cast<const QTextTable*>(part.currentFrame())) {
                addTable(*table);
            } else if (part.currentBlock().isValid()) {
                addBlock(part.currentBlock());
            }
        }
        endEachBeforeNext();
    }

    const QList<Strip>& strips() const { return m_strips; }

private:
    /// Empty paragraphs, such as those that a document has behind its tables, are left out.
    void addBlock(const QTextBlock& block)
    {
        if (block.length() <= 1) {
            return;
        }
        const QRectF place = m_layout.blockBoundingRect(block);
        const bool isPicture = block.text().contains(QChar::ObjectReplacementCharacter);
        const bool isHeading = block.blockFormat().headingLevel() > 0;
        const bool isOfList = block.textList() != nullptr;
        if (isOfList) {
            keepLeadWithNext();
        } else if (isHeading) {
            m_leadBegin = m_strips.size();
        }
        m_strips.append({{place.top(), place.bottom()}, isPicture || isHeading, {}});
        if (isOfList) {
            m_leadBegin = m_strips.size();
        }
    }

    /// What leads up to a table or a list, from its heading on, is nothing without it.
    void keepLeadWithNext()
    {
        for (qsizetype index = m_leadBegin; index < m_strips.size(); ++index) {
            m_strips[index].isKeptWithNext = true;
        }
    }

    void addTable(const QTextTable& table)
    {
        const QRectF place = m_layout.frameBoundingRect(const_cast<QTextTable*>(&table));
        const int headRows = std::min(table.format().headerRowCount(), table.rows() - 1);
        keepLeadWithNext();
        // The titles are one piece with the first row below them.
        qreal top = place.top();
        std::optional<Span> head;
        for (int row = headRows; row < table.rows(); ++row) {
            const bool isLast = row + 1 == table.rows();
            const qreal bottom = isLast ? place.bottom() : topOf(table, row + 1);
            // No row stands alone at the foot or at the head of a page.
            const bool isKept = !isLast && (row == headRows || row + 2 == table.rows());
            m_strips.append({{top, bottom}, isKept, head});
            if (headRows > 0) {
                head = Span{place.top(), topOf(table, headRows)};
            }
            top = bottom;
        }
        m_leadBegin = m_strips.size();
    }

    /// The space below a piece may reach into the next one.
    void endEachBeforeNext()
    {
        for (qsizetype index = 0; index + 1 < m_strips.size(); ++index) {
            Span& span = m_strips[index].span;
            span.bottom = std::min(span.bottom, m_strips.at(index + 1).span.top);
        }
    }

    /// Where a row begins: above the highest text in it.
    qreal topOf(const QTextTable& table, int row) const
    {
        const QTextTableCell cell = table.cellAt(row, 0);
        const qreal text = m_layout.blockBoundingRect(cell.firstCursorPosition().block()).top();
        return text - cell.format().toTableCellFormat().topPadding() * m_scale;
    }

    const QAbstractTextDocumentLayout& m_layout;
    qreal m_scale;
    QList<Strip> m_strips;
    qsizetype m_leadBegin = 0; ///< of what leads up to the next table or list
};

} // namespace

QList<Strip> stripsOf(const QTextDocument& document, qreal scale)
{
    return Collector(document, scale).strips();
}
