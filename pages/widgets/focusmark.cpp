#include "focusmark.h"

#include <QPainter>
#include <QWidget>

void FocusMark::focusIn(const QFocusEvent* event)
{
    switch (event->reason()) {
    case Qt::MouseFocusReason:
        // The press that follows says so itself.
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

void fillFrame(QPainter& painter, const QRect& rect, const QColor& color)
{
    for (const QRect& side : QRegion(rect) - QRegion(rect.adjusted(1, 1, -1, -1))) {
        painter.fillRect(side, color);
    }
}

void drawFocusRing(QPainter& painter, const QRect& rect)
{
    fillFrame(painter, rect, Qt::black);
    fillFrame(painter, rect.adjusted(1, 1, -1, -1), Qt::white);
}
