#include "roomgrouppanels.h"

#include "roomdevices.h"
#include "roomgroup.h"
#include "roomgrouplist.h"
#include "roomgrouppanel.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int numberWidth = 15;
constexpr int layoutWidth = 40;
constexpr int roomWidth = 40;
constexpr int listStretch = 1;
constexpr int stackStretch = 4;

/// Without faults a row has the list's own colour.
void markRow(QTreeWidgetItem* row, const QString& faults)
{
    const QVariant color = faults.isEmpty() ? QVariant() : QBrush(Qt::red);
    for (const int column : {RoomGroupList::NumberColumn, RoomGroupList::LayoutColumn}) {
        row->setData(column, Qt::ForegroundRole, color);
        row->setData(column, Qt::AccessibleDescriptionRole, faults);
        row->setToolTip(column, faults);
    }
}

} // namespace

RoomGroupPanels::RoomGroupPanels(const QString& stackName, QWidget* parent)
    : QWidget(parent)
    , m_list(new RoomGroupList({tr("No."), tr("Layout"), tr("Room")},
                               {numberWidth, layoutWidth, roomWidth}, this))
    , m_stack(new QStackedWidget(this))
{
    m_list->setObjectName(QStringLiteral("roomGroupList"));
    m_stack->setObjectName(stackName);
    buildLayout();
}

void RoomGroupPanels::buildLayout()
{
    auto* column = new QVBoxLayout;
    column->addWidget(titleLabel(tr("Select a room combination"), m_list));
    column->addWidget(m_list, 1);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(column, listStretch);
    row->addWidget(m_stack, stackStretch);
}

void RoomGroupPanels::load(IDocAccessor& doc, const MakePanel& makePanel)
{
    clear();
    const QList<RoomGroup> groups = roomGroups(doc);
    RoomDevices devices(&doc);
    for (const RoomGroup& group : groups) {
        RoomGroupPanel* panel = makePanel(group, devices, m_stack);
        m_stack->addWidget(panel);
        m_panels.append(panel);
    }
    m_list->setGroups(groups);
    m_list->selectGroup(0);
}

void RoomGroupPanels::clear()
{
    m_panels.clear();
    while (QWidget* panel = m_stack->widget(0)) {
        m_stack->removeWidget(panel);
        delete panel;
    }
}

void RoomGroupPanels::store()
{
    for (RoomGroupPanel* panel : std::as_const(m_panels)) {
        panel->store();
    }
}

void RoomGroupPanels::reset()
{
    for (RoomGroupPanel* panel : std::as_const(m_panels)) {
        panel->reset();
    }
}

QStringList RoomGroupPanels::showFaults()
{
    QStringList all;
    for (qsizetype index = 0; index < m_panels.size(); ++index) {
        const QStringList faults = m_panels.at(index)->faults();
        markRow(m_list->topLevelItem(int(index)), faults.join(u'\n'));
        all += faults;
    }
    return all;
}

void RoomGroupPanels::showCurrentPanel()
{
    const int index = m_list->currentGroup();
    if (index >= 0 && index < m_panels.size()) {
        m_panels.at(index)->buildLists(m_list);
        m_stack->setCurrentWidget(m_panels.at(index));
    }
}
