#include "rowlist.h"

#include "focusedrow.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

/// `widget` itself, or what it consists of, where the Tab key stops.
QList<QWidget*> stopsOf(QWidget* widget)
{
    QList<QWidget*> stops;
    if (widget && (widget->focusPolicy() & Qt::TabFocus)) {
        stops.append(widget);
    } else if (widget) {
        for (QWidget* part : widget->findChildren<QWidget*>()) {
            if (part->focusPolicy() & Qt::TabFocus) {
                stops.append(part);
            }
        }
    }
    return stops;
}

/// The first of the stops that takes the focus now; null when none does.
QWidget* firstOpen(const QList<QWidget*>& stops)
{
    const auto found = std::find_if(stops.begin(), stops.end(), [](const QWidget* stop) {
        return stop->isEnabled() && stop->isVisible();
    });
    return found == stops.end() ? nullptr : *found;
}

bool leadsOn(int key)
{
    return key >= Qt::Key_Home && key <= Qt::Key_PageDown; // the arrows lie between
}

bool isText(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

RowList::RowList(QWidget* parent)
    : QTreeWidget(parent)
    , m_focusedRow(new FocusedRow(this))
{
}

QTreeWidgetItem* RowList::rowInUse() const
{
    const QModelIndex cell = m_focusedRow->cellOf(window()->focusWidget());
    return cell.isValid() ? itemFromIndex(cell) : currentItem();
}

void RowList::goTo(QTreeWidgetItem* row)
{
    const QModelIndex left = m_focusedRow->cellOf(window()->focusWidget());
    setCurrentItem(row);
    takeFocusAlong(left);
}

QList<QWidget*> RowList::stopsIn(QTreeWidgetItem* row) const
{
    QList<QWidget*> stops;
    for (int column = 0; column < columnCount(); ++column) {
        stops.append(stopsOf(itemWidget(row, column)));
    }
    return stops;
}

void RowList::chain(QWidget* previous, QWidget* stop)
{
    setTabOrder(previous, stop);
    m_focusedRow->watch(stop);
}

void RowList::keyPressEvent(QKeyEvent* event)
{
    // Whatever else is pressed, as for copying, is meant for the cell that was clicked.
    if (!leadsOn(event->key()) && !isText(*event)) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    const QModelIndex cell = m_focusedRow->cellOf(window()->focusWidget());
    beginAt(cell.isValid() ? cell : currentIndex());
    QTreeWidget::keyPressEvent(event);
    takeFocusAlong(cell);
}

bool RowList::focusNextPrevChild(bool next)
{
    const QWidget* focused = window()->focusWidget();
    if (next && focused == this && enterRow()) {
        return true;
    }
    if (!next && m_entry && focused == m_entry) {
        setFocus(Qt::BacktabFocusReason);
        return true;
    }
    return QTreeWidget::focusNextPrevChild(next);
}

/// False where the current row holds nothing for the keyboard.
bool RowList::enterRow()
{
    m_entry = currentItem() ? firstOpen(stopsIn(currentItem())) : nullptr;
    if (m_entry) {
        m_entry->setFocus(Qt::TabFocusReason);
    }
    return m_entry;
}

/// Makes the first cell of a row the one that a key begins at. From one that holds a widget,
/// letters would lead into the widget instead of searching.
void RowList::beginAt(const QModelIndex& cell)
{
    if (cell.row() != currentIndex().row()) {
        setCurrentItem(itemFromIndex(cell)); // the mouse put the focus there
    } else if (cell.column() > 0) {
        selectionModel()->setCurrentIndex(cell.siblingAtColumn(0), QItemSelectionModel::NoUpdate);
    }
}

/// The focus was in the cell `left`: now that another row is current it goes to the same place
/// there or, where that has nothing to take it, to the list.
void RowList::takeFocusAlong(const QModelIndex& left)
{
    if (!left.isValid() || !currentItem() || left.row() == currentIndex().row()) {
        return;
    }
    QWidget* stop = firstOpen(stopsOf(itemWidget(currentItem(), left.column())));
    (stop ? stop : this)->setFocus(Qt::TabFocusReason);
}
