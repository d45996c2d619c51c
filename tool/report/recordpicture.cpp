#include "recordpicture.h"

#include "layoutpicture.h"
#include "roomcolor.h"
#include "roomgroup.h"
#include "roompicture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace {

// At the sizes that the page gives them at least 300 dots per inch.
constexpr GridGeometry drawnGeometry{.gap = 6, .cellSize = 120};
constexpr GridGeometry combinedGeometry{.gap = 6, .cellSize = 72};
constexpr int sampleSide = 72;

constexpr int hatchDistance = 24;
constexpr int hatchWidth = 3;
const QColor hatchColor(255, 255, 255, 120);

QImage canvas(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QFont numberFont(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(true);
    return font;
}

QByteArray png(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

/// Room 1 has none, so that most of a picture is plain.
void paintHatching(QPainter& painter, const QRect& area, int room)
{
    painter.setPen(QPen(hatchColor, hatchWidth));
    const int reach = std::max(area.width(), area.height());
    for (int step = -reach; step < 2 * reach; step += hatchDistance) {
        const int x = area.left() + step;
        if (room == 2) {
            painter.drawLine(x, area.bottom(), x + reach, area.bottom() - reach);
        } else if (room == 3) {
            painter.drawLine(x, area.top(), x + reach, area.top() + reach);
        } else if (room == 4) {
            painter.drawLine(x, area.top(), x, area.bottom());
        }
    }
}

/// A cell of a room, with its number in the painter's font. Leaves a clip behind.
void paintCell(QPainter& painter, const QRect& cell, int room)
{
    painter.setClipRect(cell);
    painter.fillRect(cell, roomColor(room, Qt::white));
    paintHatching(painter, cell, room);
    painter.setPen(Qt::white);
    painter.drawText(cell, Qt::AlignCenter, QString::number(room));
}

void paintRooms(QPainter& painter, const RoomGrid& grid)
{
    for (int room = 1; room <= grid.highestRoom(); ++room) {
        for (const QPoint cell : grid.cellsOf(room)) {
            paintCell(painter, drawnGeometry.cellRect(cell), room);
        }
    }
}

void paintCombinedHatching(QPainter& painter, const LayoutPicture& picture,
                           const QList<QList<int>>& groups)
{
    const QRect all(0, 0, picture.geometry().side(), picture.geometry().side());
    for (const QList<int>& group : groups) {
        const int lowest = *std::min_element(group.begin(), group.end());
        for (const int room : group) {
            painter.setClipRegion(picture.rooms().value(room).area);
            paintHatching(painter, all, lowest);
        }
    }
}

} // namespace

QByteArray drawnRoomsPng(const QList<RoomInfo>& rooms)
{
    RoomGrid grid;
    for (const RoomInfo& room : rooms) {
        for (const QPoint cell : room.positionList) {
            grid.set(cell, room.number);
        }
    }
    QImage image = canvas(drawnGeometry.side());
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(numberFont(drawnGeometry.cellSize / 2));
        const RoomGrid lines;
        RoomPicture(drawnGeometry).paint(painter, lines, image.rect());
        paintRooms(painter, grid);
    }
    return png(image);
}

QByteArray layoutPng(const QList<RoomInfo>& rooms, const QString& layoutText)
{
    const QList<QList<int>> groups = combinedRoomsIn(layoutText);
    LayoutPicture picture(combinedGeometry);
    for (const RoomInfo& room : rooms) {
        picture.setRoom(room.number, room.positionList);
    }
    picture.setGroups(groups);
    QImage image = canvas(combinedGeometry.side());
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(numberFont(combinedGeometry.cellSize));
        picture.paintRooms(painter);
        paintCombinedHatching(painter, picture, groups);
        picture.paintNumbers(painter);
    }
    return png(image);
}

QByteArray roomSamplePng(int room)
{
    QImage image = canvas(sampleSide);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(numberFont(sampleSide * 2 / 3));
        paintCell(painter, image.rect(), room);
    }
    return png(image);
}
