#include "svgicon.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

QPixmap renderedIcon(const QString& path, QSize size, qreal ratio, const QColor& color)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(), size));
    // What the file paints gives the shape; where it is smooth at the edges it stays so.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(QPoint(), size), color);
    return pixmap;
}

} // namespace

void paintSvgIcon(QPainter& painter, const QRect& rect, const QString& path, const QColor& color)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QString key =
        QStringLiteral("%1|%2x%3@%4 %5")
            .arg(path, QString::number(rect.width()), QString::number(rect.height()),
                 QString::number(ratio), color.name(QColor::HexArgb));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = renderedIcon(path, rect.size(), ratio, color);
        QPixmapCache::insert(key, pixmap);
    }
    painter.drawPixmap(rect.topLeft(), pixmap);
}
