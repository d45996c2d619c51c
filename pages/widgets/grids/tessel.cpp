#include "tessel.h"

#include "accessiblerole.h"
#include "arrowkey.h"
#include "fontscale.h"
#include "layoutthumbnail.h"
#include "menustyle.h"
#include "roomborder.h"
#include "roomgroup.h"
#include "sight.h"
#include "tesselbutton.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int focusLineWidth = 3;

/// From the middle of a room's number to its drop-down mark.
constexpr int markDistance = 6;
constexpr QSize markSize(8, 4);
constexpr QMargins hotMargins(2, 2, 2, 2);

} // namespace

Tessel::Tessel(QWidget* parent, int gap, int cellSize, bool readOnly)
    : QWidget(parent)
    , m_picture(GridGeometry{gap, cellSize})
    , m_readOnly(readOnly)
{
    setFixedSize(m_picture.geometry().side(), m_picture.geometry().side());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(tr("Room combination"));
    setToolTip(readOnly ? tr("The combined rooms")
                        : tr("Combine rooms with the boxes between them or with a room's menu"));
}

void Tessel::setRoom(int room, const QList<QPoint>& cells)
{
    m_picture.setRoom(room, cells);
}

void Tessel::createLinkButtons()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    QWidget* last = this;
    for (const RoomBorder& border : firstBorders(m_picture.grid())) {
        TesselButton* button = createLinkButton(border);
        m_buttons.insert(border.rooms, button);
        setTabOrder(last, button);
        last = button;
    }
}

void Tessel::clearAll()
{
    m_picture.clear();
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_links.clear();
    setCurrentRoom(0);
}

QString Tessel::roomGroupText() const
{
    return layoutText(m_links.combinedRooms(maxRoomNumber()));
}

QPixmap Tessel::renderThumbnail() const
{
    return paintedRooms(m_picture);
}

void Tessel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    m_picture.paintRooms(painter);
    m_picture.paintNumbers(painter);
    if (!m_readOnly) {
        paintMarks(painter);
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
    const int room = m_picture.roomAt(position);
    if (room == 0) {
        return;
    }
    setCurrentRoom(room);
    if (hotSpot(room).contains(position)) {
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
        openMenuAt(m_picture.roomAt(event->pos()), event->globalPos());
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
    if (!m_picture.rooms().contains(m_currentRoom)) {
        m_currentRoom = m_picture.rooms().isEmpty() ? 0 : m_picture.rooms().firstKey();
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
    const QPoint corner = m_picture.geometry().pitch() * border.cell;
    const int cellSize = m_picture.geometry().cellSize;
    if (border.step.x() != 0) {
        button->move(corner.x() + m_picture.geometry().pitch() - button->width() / 2,
                     corner.y() + (cellSize - button->height()) / 2);
    } else {
        button->move(corner.x() + (cellSize - button->width()) / 2,
                     corner.y() + m_picture.geometry().pitch() - button->height() / 2);
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
    m_picture.setGroups(combinedGroups());
    describeCurrentRoom();
    update();
}

void Tessel::openMenu(int room)
{
    openMenuAt(room, mapToGlobal(hotSpot(room).bottomLeft()));
}

void Tessel::openMenuAt(int room, QPoint globalPosition)
{
    if (!m_picture.rooms().contains(room)) {
        return;
    }
    m_menu = new QMenu(this);
    m_menu->setStyle(new MenuStyle(m_menu));
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
    describeCurrentRoom();
    update();
}

/// Tells screen readers where the keyboard is and with which rooms that one is combined.
void Tessel::describeCurrentRoom()
{
    QString words;
    if (m_currentRoom != 0) {
        const QStringList others = roomsCombinedWith(m_currentRoom);
        words = others.isEmpty()
                    ? tr("Room %1, not combined").arg(m_currentRoom)
                    : tr("Room %1, combined with %2")
                          .arg(QString::number(m_currentRoom), others.join(tr(" and ")));
    }
    if (accessibleDescription() != words) { // set anew, the same words would be read out again
        setAccessibleDescription(words);
    }
}

QStringList Tessel::roomsCombinedWith(int room) const
{
    QStringList others;
    for (const QList<int>& group : combinedGroups()) {
        for (const int other : group.contains(room) ? group : QList<int>()) {
            if (other != room) {
                others.append(tr("room %1").arg(other));
            }
        }
    }
    return others;
}

void Tessel::goToNeighbour(QPoint step)
{
    QMap<int, QPoint> places;
    const QMap<int, LayoutPicture::Room>& rooms = m_picture.rooms();
    for (auto room = rooms.begin(); room != rooms.end(); ++room) {
        places.insert(room.key(), room->label.center());
    }
    setCurrentRoom(neighbourPlace(places, m_currentRoom, step));
    bringIntoSight(this, m_picture.rooms().value(m_currentRoom).area.boundingRect());
}

/// The left end of the drop-down mark beside a room's number, which is wider in a larger font.
QPoint Tessel::markOf(const QRect& label) const
{
    return label.center() + QPoint(scaledToFont(markDistance, this), 0);
}

/// Where a press opens the room's menu: the drop-down mark and a little around it.
QRect Tessel::hotSpot(int room) const
{
    const QPoint mark = markOf(m_picture.rooms().value(room).label);
    return QRect(mark, markSize).marginsAdded(hotMargins);
}

/// The marks that open the rooms' menus.
void Tessel::paintMarks(QPainter& painter) const
{
    painter.setPen(Qt::white);
    painter.setBrush(Qt::white);
    for (const LayoutPicture::Room& room : m_picture.rooms()) {
        painter.setClipRegion(room.area);
        const QPoint left = markOf(room.label);
        const QPoint right = left + QPoint(markSize.width(), 0);
        const QPoint tip = left + QPoint(markSize.width() / 2, markSize.height());
        painter.drawPolygon(QPolygon({left, right, tip, left}));
    }
}

/// Outlines the current room from inside.
void Tessel::paintFocus(QPainter& painter) const
{
    const QRegion area = m_picture.rooms().value(m_currentRoom).area;
    QPainterPath outline;
    outline.addRegion(area);
    painter.setClipRegion(area);
    painter.strokePath(outline.simplified(), QPen(Qt::white, 2 * focusLineWidth));
}
