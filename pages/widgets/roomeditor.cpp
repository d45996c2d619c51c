#include "roomeditor.h"

#include "gridcolor.h"
#include "roomcolor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int maxRooms = 4;
constexpr QPoint noPosition{-1, -1};

/// The cursor's step for an arrow key; null for any other key.
QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// The numbers stay inside cells that are lower than a line of text.
QFont fittingFont(QFont font, int cellSize)
{
    if (QFontMetrics(font).height() > cellSize) {
        font.setPixelSize(std::max(1, cellSize * 3 / 4));
    }
    return font;
}

} // namespace

RoomEditor::RoomEditor(QWidget* parent, int gap, int cellSize, bool readOnly)
    : QWidget(parent)
    , m_geometry{gap, cellSize}
    , m_readOnly(readOnly)
    , m_pressPosition(noPosition)
{
    setFixedSize(m_geometry.side(), m_geometry.side());
    setFont(fittingFont(font(), cellSize));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleName(tr("Room design"));
    setToolTip(readOnly ? tr("The rooms as they were drawn")
                        : tr("Draw with the mouse, or with the arrow keys, Space and Shift"));
}

void RoomEditor::setRoom(int room, const QList<QPoint>& cells)
{
    for (const QPoint cell : cells) {
        m_grid.set(cell, room);
    }
    m_modified = false;
    update();
    Q_EMIT roomCountChanged(roomCount());
}

void RoomEditor::clear()
{
    m_grid.clear();
    m_currentRoom = 0;
    update();
    Q_EMIT roomCountChanged(0);
}

void RoomEditor::mousePressEvent(QMouseEvent* event)
{
    if (m_readOnly) {
        return;
    }
    endKeyStroke();
    m_focusMark.mouseUsed();
    updateCell(m_cursor);
    const QPoint position = event->position().toPoint();
    const std::optional<QPoint> cell = m_geometry.cellAt(position);
    if (cell) {
        m_cursor = *cell;
    }
    if (cell && beginGesture(*cell)) {
        m_pressPosition = position;
    }
}

void RoomEditor::mouseMoveEvent(QMouseEvent* event)
{
    const std::optional<QPoint> cell = m_geometry.cellAt(event->position().toPoint());
    if (!m_readOnly && cell) {
        extendStroke(*cell);
    }
}

void RoomEditor::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_readOnly) {
        return;
    }
    m_dragging = false;
    const QPoint position = event->position().toPoint();
    const std::optional<QPoint> cell = m_geometry.cellAt(position);
    if (!cell) {
        return;
    }
    if (position == m_pressPosition) {
        click(*cell);
    } else {
        endGesture();
    }
}

void RoomEditor::keyPressEvent(QKeyEvent* event)
{
    const QPoint step = stepOf(event->key());
    if (m_readOnly || (step.isNull() && event->key() != Qt::Key_Space)) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_focusMark.keyUsed();
    if (!step.isNull()) {
        moveCursor(step, event->modifiers() & Qt::ShiftModifier);
    } else if (!event->isAutoRepeat()) {
        clickAtCursor();
    }
}

void RoomEditor::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift) {
        endKeyStroke();
    }
    QWidget::keyReleaseEvent(event);
}

void RoomEditor::focusInEvent(QFocusEvent* event)
{
    m_focusMark.focusIn(event);
    describeCursor();
    updateCell(m_cursor);
}

void RoomEditor::focusOutEvent(QFocusEvent* /*event*/)
{
    endKeyStroke();
    updateCell(m_cursor);
}

void RoomEditor::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), gridBackground);
    // Only what is exposed: while drawing that is a single cell per move, without lines.
    const QRect cells = m_geometry.cellsIn(event->rect());
    if (!m_geometry.cellRect(cells.topLeft()).contains(event->rect())) {
        paintLines(painter, cells);
    }
    for (int x = cells.left(); x <= cells.right(); ++x) {
        for (int y = cells.top(); y <= cells.bottom(); ++y) {
            paintCell(painter, {x, y});
        }
    }
    if (m_focusMark.isShown(this)) {
        drawFocusRing(painter, m_geometry.cellRect(m_cursor));
    }
}

/// Decides which room a press on `cell` draws into. False, with nothing changed, where it would
/// begin a room too many.
bool RoomEditor::beginGesture(QPoint cell)
{
    const int held = m_grid.at(cell);
    if (held == 0 && roomCount() >= maxRooms) {
        return false;
    }
    m_currentRoom = held != 0 ? held : roomCount() + 1;
    return true;
}

void RoomEditor::extendStroke(QPoint cell)
{
    if (m_currentRoom == 0) {
        return;
    }
    const int before = roomCount();
    if (!m_dragging) {
        writeFirstCell(cell);
        m_dragging = true;
        m_modified = true;
    } else if (m_grid.at(cell) == 0 && m_grid.touches(cell, m_currentRoom)) {
        m_grid.set(cell, m_currentRoom);
        m_modified = true;
        updateCell(cell);
    }
    if (roomCount() != before) {
        Q_EMIT roomCountChanged(roomCount());
    }
}

/// The first cell of a stroke is written whatever it held. Where it was the last one of another
/// room, the rooms above that one move down, the stroke's own room among them.
void RoomEditor::writeFirstCell(QPoint cell)
{
    const int overwritten = m_grid.at(cell);
    m_grid.set(cell, m_currentRoom);
    updateCell(cell);
    if (overwritten != 0 && m_grid.closeHole(overwritten)) {
        m_currentRoom -= m_currentRoom > overwritten ? 1 : 0;
        update();
    }
}

void RoomEditor::click(QPoint cell)
{
    const int before = roomCount();
    if (const int held = m_grid.at(cell); held != 0) {
        m_grid.removeRoom(held);
        update();
    } else {
        m_grid.set(cell, m_currentRoom);
        updateCell(cell);
    }
    m_modified = true;
    endGesture();
    if (roomCount() != before) {
        Q_EMIT roomCountChanged(roomCount());
    }
}

void RoomEditor::endGesture()
{
    m_pressPosition = noPosition;
    m_currentRoom = 0;
}

void RoomEditor::clickAtCursor()
{
    endKeyStroke();
    if (beginGesture(m_cursor)) {
        m_dragging = false;
        click(m_cursor);
    }
    setCursorCell(m_cursor);
}

void RoomEditor::moveCursor(QPoint step, bool stroke)
{
    const QPoint target = m_cursor + step;
    if (!stroke) {
        endKeyStroke();
    }
    if (!GridGeometry::contains(target)) {
        return;
    }
    if (stroke) {
        strokeTo(target);
    }
    setCursorCell(target);
}

void RoomEditor::strokeTo(QPoint cell)
{
    if (!m_keyStroke) {
        endGesture();
        m_dragging = false;
        m_keyStroke = true;
        beginGesture(m_cursor);
        extendStroke(m_cursor);
    }
    extendStroke(cell);
}

void RoomEditor::endKeyStroke()
{
    if (m_keyStroke) {
        m_keyStroke = false;
        m_dragging = false;
        endGesture();
    }
}

void RoomEditor::setCursorCell(QPoint cell)
{
    updateCell(m_cursor);
    m_cursor = cell;
    updateCell(m_cursor);
    describeCursor();
}

void RoomEditor::describeCursor()
{
    const QString place = tr("Column %1, row %2").arg(m_cursor.x() + 1).arg(m_cursor.y() + 1);
    const int room = m_grid.at(m_cursor);
    setAccessibleDescription(room != 0 ? tr("%1, room %2").arg(place).arg(room)
                                       : tr("%1, empty").arg(place));
}

void RoomEditor::updateCell(QPoint cell)
{
    update(m_geometry.cellRect(cell));
}

/// Draws the lines around the given cells.
void RoomEditor::paintLines(QPainter& painter, const QRect& cells) const
{
    painter.setPen(
        QPen(QBrush(Qt::black), m_geometry.gap, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    for (int i = cells.left(); i <= cells.right() + 1; ++i) {
        const int x = m_geometry.pitch() * i + m_geometry.gap / 2;
        painter.drawLine(x, 0, x, height());
    }
    for (int i = cells.top(); i <= cells.bottom() + 1; ++i) {
        const int y = m_geometry.pitch() * i + m_geometry.gap / 2;
        painter.drawLine(0, y, width(), y);
    }
}

void RoomEditor::paintCell(QPainter& painter, QPoint cell)
{
    const int room = m_grid.at(cell);
    if (room == 0) {
        return;
    }
    const QRect square = m_geometry.cellRect(cell);
    painter.fillRect(square, roomColor(room, Qt::white));
    // Laid out once per number: setting the text of 64 cells costs more than all else here.
    QStaticText& text = m_numbers[room];
    if (text.text().isEmpty()) {
        text.setTextFormat(Qt::PlainText);
        text.setText(QString::number(room));
        text.prepare(QTransform(), font());
    }
    painter.setPen(QPen(Qt::white, 1));
    const QPointF middle = QRectF(QPointF(), text.size()).center();
    painter.drawStaticText(QRectF(square).center() - middle, text);
}
