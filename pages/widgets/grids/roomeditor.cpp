#include "roomeditor.h"

#include "accessiblerole.h"
#include "arrowkey.h"
#include "sight.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QPoint noPosition{-1, -1};

} // namespace

RoomEditor::RoomEditor(QWidget* parent, int gap, int cellSize, bool readOnly)
    : QWidget(parent)
    , m_picture(GridGeometry{gap, cellSize})
    , m_readOnly(readOnly)
    , m_pressPosition(noPosition)
{
    setCellSize(cellSize);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleRole(this, readOnly ? QAccessible::Graphic : QAccessible::Canvas);
    setAccessibleName(tr("Room design"));
    setToolTip(readOnly ? tr("The rooms as they were drawn")
                        : tr("Draw with the mouse, or with the arrow keys, Space and Shift"));
}

void RoomEditor::setCellSize(int cellSize)
{
    m_picture = RoomPicture(GridGeometry{geometry().gap, cellSize});
    setFixedSize(geometry().side(), geometry().side());
    setFont(m_picture.fittingFont(parentWidget() ? parentWidget()->font() : font()));
}

void RoomEditor::setRoom(int room, const QList<QPoint>& cells)
{
    m_drawing.setRoom(room, cells);
    describeCursor();
    update();
    Q_EMIT roomCountChanged(roomCount());
}

void RoomEditor::clear()
{
    m_drawing.clear();
    describeCursor();
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
    const std::optional<QPoint> cell = geometry().cellAt(position);
    if (cell) {
        m_cursor = *cell;
    }
    if (cell && begin(*cell)) {
        m_pressPosition = position;
    }
    describeCursor();
}

void RoomEditor::mouseMoveEvent(QMouseEvent* event)
{
    const std::optional<QPoint> cell = geometry().cellAt(event->position().toPoint());
    if (!m_readOnly && cell) {
        const RoomGrid before = m_drawing.grid();
        m_drawing.extend(*cell);
        showChanges(before);
    }
}

void RoomEditor::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_readOnly) {
        return;
    }
    m_drawing.liftStroke();
    const QPoint position = event->position().toPoint();
    const std::optional<QPoint> cell = geometry().cellAt(position);
    if (!cell) {
        return;
    }
    const RoomGrid before = m_drawing.grid();
    if (position == m_pressPosition) {
        m_drawing.click(*cell);
    }
    endGesture();
    showChanges(before);
}

void RoomEditor::keyPressEvent(QKeyEvent* event)
{
    const QPoint step = arrowStep(event->key());
    if (m_readOnly || (step.isNull() && event->key() != Qt::Key_Space)) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_focusMark.keyUsed();
    updateCell(m_cursor);
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
    m_picture.paint(painter, m_drawing.grid(), event->rect());
    if (m_focusMark.isShown(this)) {
        drawFocusRing(painter, geometry().cellRect(m_cursor));
    }
}

/// Repaints and describes the cells that an edit changed, and tells when it changed the number of
/// rooms.
void RoomEditor::showChanges(const RoomGrid& before)
{
    const QList<QPoint> changed = m_drawing.grid().changedCells(before);
    for (const QPoint cell : changed) {
        updateCell(cell);
    }
    if (!changed.isEmpty()) {
        describeCursor();
    }
    if (roomCount() != before.highestRoom()) {
        Q_EMIT roomCountChanged(roomCount());
    }
}

bool RoomEditor::begin(QPoint cell)
{
    const bool begun = m_drawing.begin(cell);
    if (!begun) {
        Q_EMIT roomRefused();
    }
    return begun;
}

void RoomEditor::endGesture()
{
    m_pressPosition = noPosition;
    m_drawing.end();
}

void RoomEditor::clickAtCursor()
{
    endKeyStroke();
    const RoomGrid before = m_drawing.grid();
    if (begin(m_cursor)) {
        m_drawing.liftStroke();
        m_drawing.click(m_cursor);
        endGesture();
    }
    updateCell(m_cursor);
    showChanges(before);
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
    bringIntoSight(this, geometry().cellRect(target));
}

void RoomEditor::strokeTo(QPoint cell)
{
    const RoomGrid before = m_drawing.grid();
    if (!m_keyStroke) {
        endGesture();
        m_drawing.liftStroke();
        m_keyStroke = true;
        begin(m_cursor);
        m_drawing.extend(m_cursor);
    }
    m_drawing.extend(cell);
    showChanges(before);
}

void RoomEditor::endKeyStroke()
{
    if (m_keyStroke) {
        m_keyStroke = false;
        m_drawing.liftStroke();
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
    if (m_readOnly) {
        return;
    }
    const QString place = tr("Column %1, row %2").arg(m_cursor.x() + 1).arg(m_cursor.y() + 1);
    const int room = m_drawing.grid().at(m_cursor);
    setAccessibleDescription(room != 0 ? tr("%1, room %2").arg(place).arg(room)
                                       : tr("%1, empty").arg(place));
}

void RoomEditor::updateCell(QPoint cell)
{
    update(geometry().cellRect(cell));
}
