#include "frame.h"

#include <QPainter>
#include <QRegion>

void fillFrame(QPainter& painter, const QRect& rect, const QColor& color)
{
    for (const QRect& side : QRegion(rect) - QRegion(rect.adjusted(1, 1, -1, -1))) {
        painter.fillRect(side, color);
    }
}
