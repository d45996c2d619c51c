#include "tessel.h"

#include "arrowkey.h"
#include "gridcolor.h"
#include "records.h"
#include "roomarea.h"
#include "roomborder.h"
#include "roomcolor.h"
#include "roomgroup.h"
#include "tesselbutton.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int focusLineWidth = 3;

QColor ownColor(int room)
{
    return roomColor(room, Qt::white);
}

/// Where a press opens the room's menu: the drop-down mark and a little around it.
QRect hotSpot(const QRect& label)
{
    return {label.center() + QPoint(4, -2), QSize(12, 8)};
}

} // namespace

Tessel::Tessel(QWidget* parent, int gap, int cellSize, bool readOnly)
    : QWidget(parent)
    , m_geometry{gap, cellSize}
    , m_readOnly(readOnly)
{
    setFixedSize(m_geometry.side(), m_geometry.side());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleName(tr("Room combination"));
    setToolTip(readOnly ? tr("The combined rooms")
                        : tr("Combine rooms with the boxes between them or with a room's menu"));
}

void Tessel::setRoom(int room, const QList<QPoint>& cells)
{
    for (const QPoint cell : cells) {
        m_grid.set(cell, room);
    }
    const QRegion area = roomArea(m_grid, m_geometry, room);
    m_rooms.insert(room, {roomLabelRect(area), area, ownColor(room)});
}

void Tessel::createLinkButtons()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    QWidget* last = this;
    for (const RoomBorder& border : firstBorders(m_grid)) {
        TesselButton* button = createLinkButton(border);
        m_buttons.insert(border.rooms, button);
        setTabOrder(last, button);
        last = button;
    }
}

void Tessel::clearAll()
{
    m_grid.clear();
    m_rooms.clear();
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_links.clear();
    m_currentRoom = 0;
    update();
}

QString Tessel::roomGroupText() const
{
    return layoutText(m_links.combinedRooms(maxRoomNumber()));
}

QPixmap Tessel::renderThumbnail() const
{
    QPixmap pixmap(size());
    QPainter painter(&pixmap);
    paintRooms(painter);
    return pixmap;
}

void Tessel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintRooms(painter);
    for (auto room = m_rooms.cbegin(); room != m_rooms.cend(); ++room) {
        paintLabel(painter, room.key(), room.value());
    }
    if (m_focusMark.isShown(this)) {
        paintFocus(painter);
    }
}

void Tessel::mousePressEvent(QMouseEvent* event)
{
    if (m_readOnly) {
        return;
    }
    m_focusMark.mouseUsed();
    update();
    const QPoint position = event->position().toPoint();
    const int room = roomAt(position);
    if (room == 0) {
        return;
    }
    setCurrentRoom(room);
    if (hotSpot(m_rooms.value(room).label).contains(position)) {
        openMenu(room);
    }
}

void Tessel::contextMenuEvent(QContextMenuEvent* event)
{
    // A right press on a drop-down mark has opened the menu already.
    if (m_readOnly || (m_menu && m_menu->isVisible())) {
        return;
    }
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenu(m_currentRoom);
    } else {
        openMenuAt(roomAt(event->pos()), event->globalPos());
    }
}

void Tessel::keyPressEvent(QKeyEvent* event)
{
    const QPoint step = arrowStep(event->key());
    if (m_readOnly || (step.isNull() && event->key() != Qt::Key_Space)) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_focusMark.keyUsed();
    update();
    if (step.isNull()) {
        openMenu(m_currentRoom);
    } else {
        goToNeighbour(step);
    }
}

void Tessel::focusInEvent(QFocusEvent* event)
{
    m_focusMark.focusIn(event);
    if (!m_rooms.contains(m_currentRoom)) {
        m_currentRoom = m_rooms.isEmpty() ? 0 : m_rooms.firstKey();
    }
    setCurrentRoom(m_currentRoom);
}

void Tessel::focusOutEvent(QFocusEvent* /*event*/)
{
    update();
}

void Tessel::buttonClicked(bool on)
{
    auto* button = qobject_cast<TesselButton*>(sender());
    if (button && m_buttons.values().contains(button)) {
        setLinked(m_buttons.key(button), on);
    }
}

void Tessel::menuToggled(bool checked)
{
    const auto* action = qobject_cast<QAction*>(sender());
    const QStringList rooms = action ? action->data().toString().split(u',') : QStringList();
    if (rooms.size() != 2) {
        return;
    }
    const RoomPair pair = roomPair(rooms.first().toInt(), rooms.last().toInt());
    if (TesselButton* button = m_buttons.value(pair)) {
        button->setChecked(checked);
    }
    setLinked(pair, checked);
}

TesselButton* Tessel::createLinkButton(const RoomBorder& border)
{
    auto* button = new TesselButton(this);
    const QPoint corner = m_geometry.pitch() * border.cell;
    const int cellSize = m_geometry.cellSize;
    if (border.step.x() != 0) {
        button->move(corner.x() + m_geometry.pitch() - button->width() / 2,
                     corner.y() + (cellSize - button->height()) / 2);
    } else {
        button->move(corner.x() + (cellSize - button->width()) / 2,
                     corner.y() + m_geometry.pitch() - button->height() / 2);
    }
    const auto [one, other] = border.rooms;
    const QString text = tr("Link room %1 and room %2").arg(one).arg(other);
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->show();
    connect(button, SIGNAL(clicked(bool)), this, SLOT(buttonClicked(bool)));
    return button;
}

void Tessel::setLinked(RoomPair pair, bool linked)
{
    m_links.set(pair, linked);
    recolor();
    update();
}

void Tessel::recolor()
{
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        room->color = ownColor(room.key());
    }
    for (const QList<int>& group : combinedGroups()) {
        int lowest = RoomInfo::maxRooms;
        for (const int number : group) {
            lowest = std::min(lowest, number);
        }
        for (const int number : group) {
            if (m_rooms.contains(number)) {
                m_rooms[number].color = ownColor(lowest);
            }
        }
    }
}

/// The first room whose area holds the position; 0 for none.
int Tessel::roomAt(QPoint position) const
{
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        if (room->area.contains(position)) {
            return room.key();
        }
    }
    return 0;
}

void Tessel::openMenu(int room)
{
    openMenuAt(room, mapToGlobal(hotSpot(m_rooms.value(room).label).bottomLeft()));
}

void Tessel::openMenuAt(int room, QPoint globalPosition)
{
    if (!m_rooms.contains(room)) {
        return;
    }
    m_menu = new QMenu(this);
    connect(m_menu, SIGNAL(aboutToHide()), m_menu, SLOT(deleteLater()));
    for (int other = 1; other <= maxRoomNumber(); ++other) {
        if (other == room) {
            continue;
        }
        QAction* action = m_menu->addAction(tr("Room %1 + %2").arg(room).arg(other));
        action->setCheckable(true);
        action->setChecked(m_links.isLinked(roomPair(room, other)));
        action->setData(QStringLiteral("%1,%2").arg(other).arg(room));
        connect(action, SIGNAL(toggled(bool)), this, SLOT(menuToggled(bool)));
    }
    m_menu->popup(globalPosition);
}

void Tessel::setCurrentRoom(int room)
{
    m_currentRoom = room;
    setAccessibleDescription(room != 0 ? tr("Room %1").arg(room) : QString());
    update();
}

void Tessel::goToNeighbour(QPoint step)
{
    QMap<int, QPoint> places;
    for (auto room = m_rooms.begin(); room != m_rooms.end(); ++room) {
        places.insert(room.key(), room->label.center());
    }
    setCurrentRoom(neighbourPlace(places, m_currentRoom, step));
}

void Tessel::paintRooms(QPainter& painter) const
{
    painter.fillRect(rect(), gridBackground);
    for (const Room& room : m_rooms) {
        painter.setClipRegion(room.area);
        painter.fillRect(rect(), room.color);
    }
}

void Tessel::paintLabel(QPainter& painter, int number, const Room& room) const
{
    painter.setClipRegion(room.area);
    painter.setPen(Qt::white);
    painter.drawText(room.label, Qt::AlignCenter, QString::number(number));
    if (!m_readOnly) {
        const QPoint center = room.label.center();
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygon({center + QPoint(6, 0), center + QPoint(14, 0),
                                      center + QPoint(10, 4), center + QPoint(6, 0)}));
    }
}

/// Outlines the current room from inside.
void Tessel::paintFocus(QPainter& painter) const
{
    const QRegion area = m_rooms.value(m_currentRoom).area;
    QPainterPath outline;
    outline.addRegion(area);
    painter.setClipRegion(area);
    painter.strokePath(outline.simplified(), QPen(Qt::white, 2 * focusLineWidth));
}
