#include "sight.h"

#include <QScrollArea>

void bringIntoSight(const QWidget* widget, const QRect& place)
{
    for (QWidget* around = widget->parentWidget(); around; around = around->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(around);
        if (area && area->widget()) {
            const QRect inside(widget->mapTo(area->widget(), place.topLeft()), place.size());
            area->ensureVisible(inside.center().x(), inside.center().y(), inside.width() / 2 + 1,
                                inside.height() / 2 + 1);
        }
    }
}
