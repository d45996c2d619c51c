#include "counttable.h"

#include "fontscale.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

/// Of a column without a header: it fills what is left, and is no reason to scroll.
constexpr int leastWidth = 1;

} // namespace

CountTable::CountTable(const QStringList& headers, int rowCount, QMap<int, int> widths,
                       QWidget* parent)
    : QTreeWidget(parent)
    , m_rowCount(rowCount)
    , m_widths(std::move(widths))
{
    setHeaderLabels(headers);
    setRootIsDecorated(false);
    header()->setMinimumSectionSize(leastWidth);
    connect(model(), SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(fitHeight()));
    connect(header(), SIGNAL(sectionResized(int, int, int)), this, SLOT(fitHeight()));
    setWidths();
}

void CountTable::setLeastHeight(int height)
{
    m_leastHeight = height;
    fitHeight();
}

void CountTable::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        setWidths();
        fitHeight();
    }
}

void CountTable::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    fitHeight();
}

void CountTable::fitHeight()
{
    const QScrollBar* bar = horizontalScrollBar();
    const bool scrolls = header()->length() > maximumViewportSize().width();
    const int height = header()->sizeHint().height() + m_rowCount * sizeHintForRow(0) +
                       2 * frameWidth() + (scrolls ? bar->sizeHint().height() : 0);
    setFixedHeight(std::max(m_leastHeight, height));
}

void CountTable::setWidths()
{
    for (int column = 0; column < columnCount(); ++column) {
        setColumnWidth(column, widthFor(column));
    }
}

int CountTable::widthFor(int column) const
{
    const auto given = m_widths.constFind(column);
    if (given != m_widths.cend()) {
        return scaledToFont(*given, this);
    }
    return headerItem()->text(column).isEmpty()
               ? leastWidth
               : std::max(header()->defaultSectionSize(), header()->sectionSizeHint(column));
}
