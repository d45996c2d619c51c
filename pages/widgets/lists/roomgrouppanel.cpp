#include "roomgrouppanel.h"

#include "columnwidths.h"
#include "devicequeries.h"

#include <QLabel>

namespace {

constexpr int labelWidth = 200;
constexpr int identifyWidth = 25;
constexpr int modelWidth = 70;
constexpr int roomWidth = 50;
constexpr int choiceWidth = 60;
constexpr int emptyWidth = 20;

} // namespace

RoomGroupPanel::RoomGroupPanel(RoomGroup group, IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_group(std::move(group))
    , m_doc(doc)
{
}

void RoomGroupPanel::buildLists(QWidget* previous)
{
    if (!m_built) {
        m_built = true;
        createLists(previous);
    }
}

QLabel* RoomGroupPanel::createThumbnail()
{
    auto* thumbnail = new QLabel(this);
    thumbnail->setObjectName(QStringLiteral("thumbnailLabel"));
    thumbnail->setAccessibleName(tr("Layout %1").arg(m_group.sceneNumber));
    thumbnail->setPixmap(m_group.thumbnail);
    return thumbnail;
}

DeviceTable* RoomGroupPanel::createTable(const QString& name, const QString& accessibleName,
                                         const QString& choiceHeader)
{
    auto* table = new DeviceTable({tr("Hostname"), QString(), tr("Model"), tr("IP Address"),
                                   tr("Room"), choiceHeader, QString()},
                                  AddressColumn, this);
    table->setObjectName(name);
    table->setAccessibleName(accessibleName);
    new ColumnWidths(table, {{DeviceTable::LabelColumn, labelWidth},
                             {DeviceTable::IdentifyColumn, identifyWidth},
                             {ModelColumn, modelWidth},
                             {RoomColumn, roomWidth},
                             {ChoiceColumn, choiceWidth},
                             {EmptyColumn, emptyWidth}});
    table->setSortingEnabled(true);
    connect(table, SIGNAL(identifyClicked(QString)), this, SLOT(identifyButtonClicked(QString)));
    return table;
}

QStringList RoomGroupPanel::rowTexts(const DeviceEntry& device)
{
    return {device.label, QString(), device.modelName, device.ipAddress,
            QString::number(device.roomNumber)};
}

void RoomGroupPanel::identifyButtonClicked(const QString& ipAddress)
{
    identifyDevice(*m_doc, ipAddress);
}
