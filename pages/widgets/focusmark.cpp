#include "focusmark.h"

#include "frame.h"

#include <QPainter>
#include <QWidget>

bool isByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

void FocusMark::focusIn(const QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) {
        return; // The focus merely returns: the user goes on as before.
    }
    // A page that is turned gives the focus too, but its user may have the pointer in view.
    m_wanted = isByKey(reason);
}

bool FocusMark::isShown(const QWidget* widget) const
{
    return m_wanted && widget->hasFocus();
}

void drawFocusRing(QPainter& painter, const QRect& rect)
{
    fillFrame(painter, rect, Qt::black);
    fillFrame(painter, rect.adjusted(1, 1, -1, -1), Qt::white);
}
