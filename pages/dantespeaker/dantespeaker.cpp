#include "dantespeaker.h"

#include "roomdevices.h"
#include "roomgroup.h"
#include "roomgrouplist.h"
#include "roomgrouppanels.h"
#include "speakerposition.h"
#include "textlabel.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

DanteSpeaker::DanteSpeaker(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_panelsView(new RoomGroupPanels(QStringLiteral("speakerPositionStack"), this))
    , m_groupList(m_panelsView->list())
    , m_stack(m_panelsView->stack())
{
    buildLayout();
    connect(m_groupList, SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
}

void DanteSpeaker::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(tr("For each room combination listed on the left, select whether "
                                   "speakers are positioned on the left or right."),
                                this));
    layout->addWidget(
        textLabel(tr("NOTE: For mono use only, choose Left for all speakers."), this));
    layout->addWidget(m_panelsView, 1);
}

void DanteSpeaker::load()
{
    m_panels.clear();
    m_panelsView->clear();
    addPanels();
    m_groupList->selectRow(0);
}

void DanteSpeaker::addPanels()
{
    const QList<RoomGroup> groups = roomGroups(doc());
    RoomDevices devices(doc());
    for (const RoomGroup& group : groups) {
        auto* panel = new SpeakerPosition(group, &doc(), m_stack);
        panel->fill(devices);
        m_stack->addWidget(panel);
        m_panels.append(panel);
    }
    m_groupList->setGroups(groups);
}

void DanteSpeaker::store()
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
