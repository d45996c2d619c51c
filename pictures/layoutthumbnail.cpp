#include "layoutthumbnail.h"

#include "layoutpicture.h"

#include <QPainter>

namespace {

constexpr QSize thumbnailSize(64, 64);

} // namespace

QPixmap paintedRooms(const LayoutPicture& picture)
{
    const int side = picture.geometry().side();
    QPixmap pixmap(side, side);
    QPainter painter(&pixmap);
    picture.paintRooms(painter);
    return pixmap;
}

QPixmap layoutThumbnail(const QPixmap& paintedRooms)
{
    return paintedRooms.scaled(thumbnailSize);
}
