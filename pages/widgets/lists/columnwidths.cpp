#include "columnwidths.h"

#include "fontscale.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

#include <utility>

ColumnWidths::ColumnWidths(QTreeView* list, const QMap<int, int>& widths)
    : QObject(list)
    , m_list(list)
    , m_scale(fontScale(list))
{
    list->installEventFilter(this);
    for (auto width = widths.cbegin(); width != widths.cend(); ++width) {
        list->setColumnWidth(width.key(), scaledToFont(width.value(), list));
    }
}

bool ColumnWidths::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        const double before = std::exchange(m_scale, fontScale(m_list));
        scale(m_scale / before);
    }
    return QObject::eventFilter(watched, event);
}

/// Also those that were made wider by hand.
void ColumnWidths::scale(double factor)
{
    for (int column = 0; column < m_list->header()->count(); ++column) {
        m_list->setColumnWidth(column, qRound(m_list->columnWidth(column) * factor));
    }
}
