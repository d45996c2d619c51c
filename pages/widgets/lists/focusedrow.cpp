#include "focusedrow.h"

#include "focusmark.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTreeWidget>

namespace {

/// Buttons take these for Tab and Shift+Tab.
bool isUpOrDown(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

FocusedRow::FocusedRow(QTreeWidget* list)
    : QObject(list)
    , m_list(list)
{
}

void FocusedRow::watch(QWidget* stop)
{
    stop->installEventFilter(this);
}

bool FocusedRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && qobject_cast<QAbstractButton*>(watched) &&
        isUpOrDown(static_cast<QKeyEvent*>(event)->key())) {
        event->ignore(); // goes on to the list
        return true;
    }
    // Not by mouse: what is pressed must not move away under the pointer.
    if (event->type() == QEvent::FocusIn && isByKey(static_cast<QFocusEvent*>(event)->reason())) {
        show(static_cast<QWidget*>(watched));
    }
    return QObject::eventFilter(watched, event);
}

void FocusedRow::show(const QWidget* stop)
{
    const QModelIndex cell = cellOf(stop);
    if (cell.isValid()) {
        m_list->setCurrentItem(m_list->itemFromIndex(cell));
        m_list->scrollTo(cell);
    }
}

QModelIndex FocusedRow::cellOf(const QWidget* stop) const
{
    if (!stop || !m_list->viewport()->isAncestorOf(stop)) {
        return {};
    }
    for (int index = 0; index < m_list->topLevelItemCount(); ++index) {
        QTreeWidgetItem* row = m_list->topLevelItem(index);
        for (int column = 0; column < m_list->columnCount(); ++column) {
            const QWidget* widget = m_list->itemWidget(row, column);
            if (widget && (widget == stop || widget->isAncestorOf(stop))) {
                return m_list->indexFromItem(row, column);
            }
        }
    }
    return {};
}
