#include "columnwidths.h"

#include "fontscale.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

#include <utility>

ColumnWidths::ColumnWidths(QTreeView* list, QMap<int, int> widths)
    : QObject(list)
    , m_list(list)
    , m_widths(std::move(widths))
    , m_scale(fontScale(list))
{
    list->installEventFilter(this);
    setWidths();
}

bool ColumnWidths::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        const double before = std::exchange(m_scale, fontScale(m_list));
        scaleOthers(m_scale / before);
        setWidths();
    }
    return QObject::eventFilter(watched, event);
}

void ColumnWidths::setWidths()
{
    for (auto width = m_widths.cbegin(); width != m_widths.cend(); ++width) {
        m_list->setColumnWidth(width.key(), scaledToFont(width.value(), m_list));
    }
}

void ColumnWidths::scaleOthers(double factor)
{
    for (int column = 0; column < m_list->header()->count(); ++column) {
        if (!m_widths.contains(column)) {
            m_list->setColumnWidth(column, qRound(m_list->columnWidth(column) * factor));
        }
    }
}
