#include "ground.h"

#include <QAbstractItemView>

namespace {

/// Null when `widget` is in none.
const QAbstractItemView* listAround(const QWidget* widget)
{
    const QWidget* around = widget->parentWidget();
    while (around && !qobject_cast<const QAbstractItemView*>(around)) {
        around = around->parentWidget();
    }
    return qobject_cast<const QAbstractItemView*>(around);
}

} // namespace

QColor groundOf(const QWidget* widget)
{
    const QAbstractItemView* list = listAround(widget);
    if (!list) {
        return widget->palette().color(QPalette::Window);
    }
    const QPoint middle = widget->mapTo(list->viewport(), widget->rect().center());
    const bool selected = list->selectionModel()->isSelected(list->indexAt(middle));
    return list->palette().color(selected ? QPalette::Highlight : QPalette::Base);
}
