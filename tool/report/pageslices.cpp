#include "pageslices.h"

#include <algorithm>

namespace {

/// Parts the strips page by page.
class Slicer
{
public:
    Slicer(const QList<Strip>& strips, qreal height)
        : m_strips(strips)
        , m_height(height)
    {
    }

    QList<PageSlice> slices()
    {
        QList<PageSlice> slices;
        while (m_next < m_strips.size()) {
            const std::optional<Span> head = m_strips.at(m_next).head;
            m_room = m_height - (head ? head->height() : 0);
            const Span body = takeBody();
            append(slices, {head, body});
        }
        return slices;
    }

private:
    /// The strip behind those that belong together from `first` on.
    qsizetype endOfChain(qsizetype first) const
    {
        qsizetype last = first;
        while (m_strips.at(last).isKeptWithNext && last + 1 < m_strips.size()) {
            ++last;
        }
        return last + 1;
    }

    bool fits(qsizetype first, qsizetype end) const
    {
        return m_strips.at(end - 1).span.bottom - m_strips.at(first).span.top <= m_room;
    }

    /// Takes as many strips as a page has room for, at least one.
    Span takeBody()
    {
        const qsizetype first = m_next;
        while (m_next < m_strips.size() && fits(first, endOfChain(m_next))) {
            m_next = endOfChain(m_next);
        }
        // Strips that belong together and need more than a page are parted all the same.
        while (m_next == first || (isWithinChain(first) && fits(first, m_next + 1))) {
            ++m_next;
        }
        return {m_strips.at(first).span.top, m_strips.at(m_next - 1).span.bottom};
    }

    bool isWithinChain(qsizetype first) const
    {
        return m_next < m_strips.size() && endOfChain(first) > m_next;
    }

    /// Appends a page, or as many as a strip takes that is higher than one.
    void append(QList<PageSlice>& slices, PageSlice page) const
    {
        // So that rounding makes no page of its own.
        constexpr qreal least = 1;
        while (page.body.height() > m_room + least && m_room > 0) {
            const qreal middle = page.body.top + m_room;
            slices.append({page.head, {page.body.top, middle}});
            page.body.top = middle;
        }
        slices.append(page);
    }

    const QList<Strip>& m_strips;
    qreal m_height;
    qreal m_room = 0; ///< on the present page, below the repeated head
    qsizetype m_next = 0;
};

} // namespace

QList<PageSlice> slicedIntoPages(const QList<Strip>& strips, qreal height)
{
    return Slicer(strips, height).slices();
}
