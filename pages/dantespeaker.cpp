#include "dantespeaker.h"

#include "roomdevices.h"
#include "roomgroup.h"
#include "roomgrouplist.h"
#include "speakerposition.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int numberWidth = 15;
constexpr int layoutWidth = 40;
constexpr int roomWidth = 40;

} // namespace

DanteSpeaker::DanteSpeaker(IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_doc(doc)
{
    createWidgets();
    layOut();
    connect(m_groupList, SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
}

void DanteSpeaker::createWidgets()
{
    m_groupList = new RoomGroupList({tr("No."), tr("Layout"), tr("Room")},
                                    {numberWidth, layoutWidth, roomWidth}, this);
    m_groupList->setObjectName(QStringLiteral("roomGroupList"));
    m_stack = new QStackedWidget(this);
    m_stack->setObjectName(QStringLiteral("speakerPositionStack"));
}

void DanteSpeaker::layOut()
{
    auto* listTitle = new QLabel(tr("Select a room combination"), this);
    listTitle->setBuddy(m_groupList);
    auto* listColumn = new QVBoxLayout;
    listColumn->addWidget(listTitle);
    listColumn->addWidget(m_groupList, 1);

    auto* row = new QHBoxLayout;
    row->addLayout(listColumn, 1);
    row->addWidget(m_stack, 4);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(tr("For each room combination listed on the left, select whether "
                                   "speakers are positioned on the left or right."),
                                this));
    layout->addWidget(
        textLabel(tr("NOTE: For mono use only, choose Left for all speakers."), this));
    layout->addLayout(row, 1);
}

void DanteSpeaker::initialise()
{
    clearPanels();
    addPanels();
    m_groupList->selectRow(0);
    deviceSetSelected();
}

void DanteSpeaker::clearPanels()
{
    for (SpeakerPosition* panel : std::as_const(m_panels)) {
        m_stack->removeWidget(panel);
        delete panel;
    }
    m_panels.clear();
}

void DanteSpeaker::addPanels()
{
    const QList<RoomGroup> groups = roomGroups(*m_doc);
    RoomDevices devices(*m_doc);
    for (const RoomGroup& group : groups) {
        auto* panel = new SpeakerPosition(group, m_doc, m_stack);
        panel->fill(devices);
        m_stack->addWidget(panel);
        m_panels.append(panel);
    }
    m_groupList->setGroups(groups);
}

void DanteSpeaker::store() const
{
    for (const SpeakerPosition* panel : m_panels) {
        panel->store();
    }
}

void DanteSpeaker::reset()
{
    for (SpeakerPosition* panel : std::as_const(m_panels)) {
        panel->reset();
    }
}

void DanteSpeaker::deviceSetSelected()
{
    const int row = m_groupList->currentRow();
    if (row >= 0 && row < m_panels.size()) {
        m_panels.at(row)->buildList(m_groupList);
        m_stack->setCurrentWidget(m_panels.at(row));
    }
}
