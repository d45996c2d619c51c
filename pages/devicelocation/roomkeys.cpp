#include "roomkeys.h"

#include "records.h"
#include "roomcombo.h"
#include "rowlist.h"

#include <QShortcut>

namespace {

QKeySequence keyOf(int room)
{
    return QKeySequence(Qt::ControlModifier | Qt::Key(Qt::Key_0 + room));
}

QString nameOf(int room)
{
    return keyOf(room).toString(QKeySequence::NativeText);
}

} // namespace

RoomKeys::RoomKeys(RowList* list, int roomColumn)
    : QObject(list)
    , m_list(list)
    , m_roomColumn(roomColumn)
{
    for (int room = 0; room <= RoomInfo::maxRooms; ++room) {
        auto* shortcut = new QShortcut(keyOf(room), list);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, SIGNAL(activated()), this, SLOT(keyPressed()));
    }
}

QString RoomKeys::explanation(int rooms)
{
    if (rooms == 0) {
        return {};
    }
    return tr("%1 to %2 choose the room, %3 takes the device out of its room; each goes on to the "
              "next device.")
        .arg(nameOf(1), nameOf(rooms), nameOf(0));
}

void RoomKeys::keyPressed()
{
    if (const auto* shortcut = qobject_cast<QShortcut*>(sender())) {
        choose(shortcut->key()[0].key() - Qt::Key_0);
    }
}

void RoomKeys::choose(int room)
{
    QTreeWidgetItem* row = m_list->rowInUse();
    auto* combo = row ? qobject_cast<RoomCombo*>(m_list->itemWidget(row, m_roomColumn)) : nullptr;
    if (!combo || !combo->isEnabled() || room >= combo->count()) {
        return;
    }
    // Before the choice: a list that is sorted by room moves the row.
    QTreeWidgetItem* below = m_list->itemBelow(row);
    combo->setRoom(room);
    m_list->goTo(below ? below : row);
}
