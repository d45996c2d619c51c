#include "svgicon.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

QPixmap renderedIcon(const QString& path, QSize size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(), size));
    return pixmap;
}

} // namespace

void paintSvgIcon(QPainter& painter, const QRect& rect, const QString& path)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QString key = QStringLiteral("%1|%2x%3@%4")
                            .arg(path, QString::number(rect.width()),
                                 QString::number(rect.height()), QString::number(ratio));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = renderedIcon(path, rect.size(), ratio);
        QPixmapCache::insert(key, pixmap);
    }
    painter.drawPixmap(rect.topLeft(), pixmap);
}
