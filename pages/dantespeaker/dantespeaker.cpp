#include "dantespeaker.h"

#include "roomgrouplist.h"
#include "roomgrouppanels.h"
#include "speakerposition.h"
#include "textlabel.h"

#include <QLabel>
#include <QVBoxLayout>

DanteSpeaker::DanteSpeaker(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_panels(new RoomGroupPanels(QStringLiteral("speakerPositionStack"), this))
{
    buildLayout();
    connect(m_panels->list(), SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
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
    layout->addWidget(m_panels, 1);
}

void DanteSpeaker::load()
{
    m_panels->load(doc(), [this](const RoomGroup& group, RoomDevices& devices, QWidget* parent) {
        return new SpeakerPosition(group, devices, &doc(), parent);
    });
}

void DanteSpeaker::store()
{
    m_panels->store();
}

void DanteSpeaker::reset()
{
    m_panels->reset();
}

void DanteSpeaker::deviceSetSelected()
{
    m_panels->showCurrentPanel();
}
