#include "configure.h"

#include "deviceset.h"
#include "roomgrouplist.h"
#include "roomgrouppanels.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QLabel>
#include <QVBoxLayout>

Configure::Configure(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_panels(new RoomGroupPanels(QStringLiteral("deviceSetStack"), this))
{
    buildLayout();
    connect(m_panels->list(), SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
}

void Configure::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    addTexts(layout);
    layout->addWidget(m_panels, 1);
}

void Configure::addTexts(QVBoxLayout* layout)
{
    const QStringList texts{
        tr("Select which devices are to be used in each of the room combinations created in the "
           "previous step."),
        tr("For combined rooms select the devices that are to be used in that configuration. \n"
           "Please select exactly one PX-HB and up to 16 other peripheraals."),
        tr("If more devices than supported are being selected the listing will appear in red.")};
    for (const QString& text : texts) {
        layout->addWidget(textLabel(text, this));
    }
}

void Configure::load()
{
    m_panels->load(doc(), [this](const RoomGroup& group, RoomDevices& devices, QWidget* parent) {
        auto* set = new DeviceSet(group, devices, &doc(), parent);
        connect(set, SIGNAL(deviceRemoveStatusChanged()), this, SLOT(deviceRemoveStatusChanged()));
        connect(set, SIGNAL(faultsChanged()), this, SLOT(faultsChanged()));
        return set;
    });
    deviceRemoveStatusChanged();
}

void Configure::store()
{
    clearDeviceSets(doc());
    m_panels->store();
}

void Configure::reset()
{
    m_panels->reset();
    deviceRemoveStatusChanged();
}

void Configure::deviceSetSelected()
{
    m_panels->showCurrentPanel();
}

void Configure::deviceRemoveStatusChanged()
{
    m_missing = m_panels->showFaults();
    Q_EMIT nextButtonEnabled(m_missing.isEmpty());
}

void Configure::faultsChanged()
{
    m_missing = m_panels->showFaults();
    Q_EMIT missingChanged();
}
