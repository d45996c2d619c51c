#include "roomdesign.h"

#include "roomeditor.h"
#include "roomqueries.h"
#include "textlabel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int gap = 2;
constexpr int cellSize = 48;
constexpr int minRoomsToGoOn = 2;

} // namespace

RoomDesign::RoomDesign(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_editor(new RoomEditor(this, gap, cellSize, false))
{
    m_editor->setObjectName(QStringLiteral("roomEditor"));
    buildLayout();
    connect(m_editor, SIGNAL(roomCountChanged(int)), this, SLOT(roomCountChanged(int)));
    connect(m_editor, SIGNAL(roomRefused()), this, SLOT(roomRefused()));
}

void RoomDesign::load()
{
    m_editor->clear();
    for (const RoomInfo& room : drawnRooms(doc())) {
        m_editor->setRoom(room.number, room.positionList);
    }
    m_editor->clearModified();
    m_editor->update();
}

void RoomDesign::store()
{
    if (!m_editor->isModified()) {
        return;
    }
    clearRooms(doc());
    for (int room = 1; room <= RoomInfo::maxRooms; ++room) {
        const QList<QPoint> cells = m_editor->cellsOf(room);
        if (cells.isEmpty()) {
            break;
        }
        setRoomCells(doc(), room, cells);
    }
    m_editor->clearModified();
}

void RoomDesign::reset()
{
    m_editor->clear();
}

QStringList RoomDesign::missing() const
{
    if (m_editor->roomCount() >= minRoomsToGoOn) {
        return {};
    }
    return {m_editor->roomCount() == 0
                ? tr("Draw two rooms or more.")
                : tr("Draw one room more: a single one can be neither divided nor combined.")};
}

void RoomDesign::roomCountChanged(int count)
{
    Q_EMIT nextButtonEnabled(count >= minRoomsToGoOn);
}

void RoomDesign::roomRefused()
{
    Q_EMIT announced(
        tr("No room was drawn: there are %1 already, which is as many as are possible.")
            .arg(RoomInfo::maxRooms));
}

void RoomDesign::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(tr("Create an outline for up to four rooms. Mark cells "
                                   "identifying the different rooms in the grid using the mouse."),
                                this));
    layout->addWidget(textLabel(
        tr("Create larger rooms and room shapes by holding down the left mouse button while "
           "moving the mouse over the cells you want to be part of the room.\n"
           "To remove a room click on any cell that is part of that room again."),
        this));
    layout->addWidget(m_editor, 1, Qt::AlignCenter);
}
