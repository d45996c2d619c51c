#include "roompicture.h"

#include "gridcolor.h"
#include "roomcolor.h"
#include "roomgrid.h"

#include <QFontMetrics>
#include <QPainter>

QFont RoomPicture::fittingFont(QFont font) const
{
    if (QFontMetrics(font).height() > m_geometry.cellSize) {
        font.setPixelSize(std::max(1, m_geometry.cellSize * 3 / 4));
    }
    return font;
}

void RoomPicture::paint(QPainter& painter, const RoomGrid& grid, const QRect& area)
{
    painter.fillRect(area, gridBackground);
    // Only what is asked for: while drawing that is a single cell per move, without lines.
    const QRect cells = m_geometry.cellsIn(area);
    if (!m_geometry.cellRect(cells.topLeft()).contains(area)) {
        paintLines(painter, cells);
    }
    for (int x = cells.left(); x <= cells.right(); ++x) {
        for (int y = cells.top(); y <= cells.bottom(); ++y) {
            if (const int room = grid.at({x, y}); room != 0) {
                paintCell(painter, {x, y}, room);
            }
        }
    }
}

/// Draws the lines around the given cells.
void RoomPicture::paintLines(QPainter& painter, const QRect& cells) const
{
    painter.setPen(
        QPen(QBrush(Qt::black), m_geometry.gap, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const int side = m_geometry.side();
    for (int i = cells.left(); i <= cells.right() + 1; ++i) {
        const int x = m_geometry.pitch() * i + m_geometry.gap / 2;
        painter.drawLine(x, 0, x, side);
    }
    for (int i = cells.top(); i <= cells.bottom() + 1; ++i) {
        const int y = m_geometry.pitch() * i + m_geometry.gap / 2;
        painter.drawLine(0, y, side, y);
    }
}

void RoomPicture::paintCell(QPainter& painter, QPoint cell, int room)
{
    const QRect square = m_geometry.cellRect(cell);
    painter.fillRect(square, roomColor(room, Qt::white));
    // Laid out once per number: setting the text of 64 cells costs more than all else here.
    QStaticText& text = m_numbers[room];
    if (text.text().isEmpty()) {
        text.setTextFormat(Qt::PlainText);
        text.setText(QString::number(room));
        text.prepare(QTransform(), painter.font());
    }
    painter.setPen(QPen(Qt::white, 1));
    const QPointF middle = QRectF(QPointF(), text.size()).center();
    painter.drawStaticText(QRectF(square).center() - middle, text);
}
