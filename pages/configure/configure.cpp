#include "configure.h"

#include "deviceset.h"
#include "roomdevices.h"
#include "roomgroup.h"
#include "roomgrouplist.h"
#include "roomgrouppanels.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

Configure::Configure(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_panelsView(new RoomGroupPanels(QStringLiteral("deviceSetStack"), this))
    , m_groupList(m_panelsView->list())
    , m_stack(m_panelsView->stack())
{
    buildLayout();
    connect(m_groupList, SIGNAL(itemSelectionChanged()), this, SLOT(deviceSetSelected()));
}

void Configure::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    addTexts(layout);
    layout->addWidget(m_panelsView, 1);
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
    m_sets.clear();
    m_panelsView->clear();
    addSets();
    deviceRemoveStatusChanged();
    m_groupList->selectRow(0);
}

void Configure::addSets()
{
    const QList<RoomGroup> groups = roomGroups(doc());
    RoomDevices devices(doc());
    for (const RoomGroup& group : groups) {
        auto* set = new DeviceSet(group, &doc(), m_stack);
        set->fill(devices);
        connect(set, SIGNAL(deviceRemoveStatusChanged()), this, SLOT(deviceRemoveStatusChanged()));
        m_stack->addWidget(set);
        m_sets.append(set);
    }
    m_groupList->setGroups(groups);
}

void Configure::store()
{
    clearDeviceSets(doc());
    for (const DeviceSet* set : m_sets) {
        set->store();
    }
}

void Configure::reset()
{
    for (DeviceSet* set : std::as_const(m_sets)) {
        set->reset();
    }
    deviceRemoveStatusChanged();
}

void Configure::deviceSetSelected()
{
    const int row = m_groupList->currentRow();
    if (row >= 0 && row < m_sets.size()) {
        m_sets.at(row)->buildLists(m_groupList);
        m_stack->setCurrentWidget(m_sets.at(row));
    }
}

void Configure::deviceRemoveStatusChanged()
{
    bool allValid = true;
    for (qsizetype row = 0; row < m_sets.size(); ++row) {
        const bool valid = m_sets.at(row)->isValid();
        QTreeWidgetItem* item = m_groupList->topLevelItem(int(row));
        for (const int column : {RoomGroupList::numberColumn, RoomGroupList::layoutColumn}) {
            item->setForeground(column, valid ? Qt::black : Qt::red);
            item->setData(column, Qt::AccessibleDescriptionRole,
                          valid ? QString() : tr("more devices than supported"));
        }
        allValid = allValid && valid;
    }
    Q_EMIT nextButtonEnabled(allValid);
}
