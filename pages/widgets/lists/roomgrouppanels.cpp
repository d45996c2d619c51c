#include "roomgrouppanels.h"

#include "roomgrouplist.h"
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

} // namespace

RoomGroupPanels::RoomGroupPanels(const QString& stackName, QWidget* parent)
    : QWidget(parent)
    , m_list(new RoomGroupList({tr("No."), tr("Layout"), tr("Room")},
                               {numberWidth, layoutWidth, roomWidth}, this))
    , m_stack(new QStackedWidget(this))
{
    m_list->setObjectName(QStringLiteral("roomGroupList"));
    m_stack->setObjectName(stackName);

    auto* column = new QVBoxLayout;
    column->addWidget(titleLabel(tr("Select a room combination"), m_list));
    column->addWidget(m_list, 1);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(column, listStretch);
    row->addWidget(m_stack, stackStretch);
}

void RoomGroupPanels::clear()
{
    while (QWidget* panel = m_stack->widget(0)) {
        m_stack->removeWidget(panel);
        delete panel;
    }
}
