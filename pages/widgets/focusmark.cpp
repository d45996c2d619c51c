#include "focusmark.h"

#include <QPainter>
#include <QWidget>

void FocusMark::focusIn(const QFocusEvent* event)
{
    switch (event->reason()) {
    case Qt::MouseFocusReason:
        m_wanted = false;
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        // The focus merely returns: the user goes on as before.
        break;
    default:
        m_wanted = true;
    }
}

bool FocusMark::isShown(const QWidget* widget) const
{
    return m_wanted && widget->hasFocus();
}

void drawFocusRing(QPainter& painter, const QRect& rect)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::black);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::white);
    painter.drawRect(rect.adjusted(1, 1, -2, -2));
}
