#include "deviceset.h"

#include "deviceclass.h"
#include "devicetable.h"
#include "removebutton.h"
#include "removedtextdelegate.h"
#include "roomdevices.h"
#include "rowdelegate.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int addressColumn = 3;
constexpr int removeColumn = 5;
constexpr std::array textColumns = {0, 2, 3, 4};
constexpr int hubStretch = 1;
constexpr int peripheralStretch = 3;

constexpr std::array<std::pair<int, int>, 6> columnWidths = {
    {{0, 200}, {1, 25}, {2, 70}, {4, 50}, {5, 60}, {6, 20}}};

bool isSupported(const DeviceCounts& counts)
{
    return counts.hubs <= DeviceCounts::maxHubs &&
           counts.microphones + counts.speakers <= DeviceCounts::maxMicrophonesAndSpeakers &&
           counts.controllers <= DeviceCounts::maxControllers;
}

void paintRow(QTreeWidgetItem* row, bool removed)
{
    for (const int column : textColumns) {
        row->setForeground(column, removed ? RemovedTextDelegate::textColor : QColor(Qt::black));
    }
}

void drawRemovedRowsReadably(DeviceTable* table)
{
    auto* delegate = new RemovedTextDelegate(table);
    for (const int column : textColumns) {
        table->setItemDelegateForColumn(column, delegate);
    }
}

} // namespace

DeviceSet::DeviceSet(RoomGroup group, IDocAccessor* doc, QWidget* parent)
    : QWidget(parent)
    , m_group(std::move(group))
    , m_doc(doc)
{
}

void DeviceSet::fill(RoomDevices& devices)
{
    m_devices = devices.in(m_group.rooms);
    QStringList addresses;
    for (const DeviceEntry& device : std::as_const(m_devices)) {
        addresses.append(device.ipAddress);
    }
    m_removed = removedDevices(*m_doc, m_group.number, m_group.sceneNumber, addresses);
    count();
}

void DeviceSet::buildLists(QWidget* previous)
{
    if (m_summaryTable == nullptr) {
        createWidgets();
        buildLayout();
        chainTabOrder(previous);
        addRows();
        count();
    }
}

void DeviceSet::createWidgets()
{
    m_summaryTable = new QTreeWidget(this);
    m_summaryTable->setObjectName(QStringLiteral("summaryTable"));
    m_summaryTable->setAccessibleName(tr("Number of devices in this set"));
    m_summaryTable->setHeaderLabels(
        {tr("PX-HB"), tr("Microphone"), tr("Speaker"), tr("Controller"), QString()});
    m_summaryTable->setRootIsDecorated(false);
    m_summaryTable->setItemDelegate(new RowDelegate(m_summaryTable));
    m_summaryTable->addTopLevelItem(new QTreeWidgetItem);
    m_summaryTable->setFixedHeight(m_summaryTable->header()->sizeHint().height() +
                                   m_summaryTable->sizeHintForRow(0) +
                                   2 * m_summaryTable->frameWidth());
    m_hubTable = createTable(QStringLiteral("hubTable"), tr("PX-HB"));
    m_peripheralTable = createTable(QStringLiteral("peripheralTable"), tr("Peripheral"));
}

DeviceTable* DeviceSet::createTable(const QString& name, const QString& accessibleName)
{
    auto* table = new DeviceTable({tr("Hostname"), QString(), tr("Model"), tr("IP Address"),
                                   tr("Room"), QString(), QString()},
                                  addressColumn, this);
    table->setObjectName(name);
    table->setAccessibleName(accessibleName);
    for (const auto& [column, width] : columnWidths) {
        table->setColumnWidth(column, width);
    }
    drawRemovedRowsReadably(table);
    table->setSortingEnabled(true);
    connect(table, SIGNAL(identifyClicked(QString)), this, SLOT(identifyButtonClicked(QString)));
    return table;
}

void DeviceSet::buildLayout()
{
    auto* thumbnail = new QLabel(this);
    thumbnail->setObjectName(QStringLiteral("thumbnailLabel"));
    thumbnail->setAccessibleName(tr("Layout %1").arg(m_group.sceneNumber));
    thumbnail->setPixmap(m_group.thumbnail);
    auto* top = new QHBoxLayout;
    top->addWidget(thumbnail, 0, Qt::AlignTop);
    top->addWidget(m_summaryTable, 1, Qt::AlignTop);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(titleLabel(tr("PX-HB"), m_hubTable));
    layout->addWidget(m_hubTable, hubStretch);
    layout->addWidget(titleLabel(tr("Peripheral"), m_peripheralTable));
    layout->addWidget(m_peripheralTable, peripheralStretch);
}

void DeviceSet::chainTabOrder(QWidget* previous)
{
    // The buttons in the rows chain themselves behind their list when the rows come.
    setTabOrder(previous, m_summaryTable);
    setTabOrder(m_summaryTable, m_hubTable);
    setTabOrder(m_hubTable, m_peripheralTable);
}

void DeviceSet::addRows()
{
    QList<QStringList> hubs;
    QList<QStringList> peripherals;
    for (const DeviceEntry& device : std::as_const(m_devices)) {
        auto& rows = isHub(device.modelName) ? hubs : peripherals;
        rows.append({device.label, QString(), device.modelName, device.ipAddress,
                     QString::number(device.roomNumber)});
    }
    m_hubTable->setRows(hubs, [this](QTreeWidgetItem* row) { addRemoveButton(m_hubTable, row); });
    m_peripheralTable->setRows(
        peripherals, [this](QTreeWidgetItem* row) { addRemoveButton(m_peripheralTable, row); });
}

void DeviceSet::addRemoveButton(DeviceTable* table, QTreeWidgetItem* row)
{
    const bool removed = m_removed.contains(table->addressOf(row));
    auto* button = new RemoveButton(table);
    button->setDevice(row->text(DeviceTable::labelColumn));
    button->setRemoved(removed);
    table->setItemWidget(row, removeColumn, button);
    if (removed) {
        paintRow(row, removed);
    }
    m_rows.insert(button, row);
    connect(button, SIGNAL(clicked(bool)), this, SLOT(removeButtonClicked(bool)));
}

void DeviceSet::count()
{
    DeviceCounts counts;
    for (const DeviceEntry& device : std::as_const(m_devices)) {
        if (!m_removed.contains(device.ipAddress)) {
            counts.add(device.modelName);
        }
    }
    showCounts(counts);
    const bool valid = isSupported(counts);
    if (valid != m_valid) {
        m_valid = valid;
        Q_EMIT deviceRemoveStatusChanged();
    }
}

void DeviceSet::showCounts(const DeviceCounts& counts)
{
    if (m_summaryTable != nullptr) {
        QTreeWidgetItem* row = m_summaryTable->topLevelItem(0);
        int column = 0;
        for (const int number :
             {counts.hubs, counts.microphones, counts.speakers, counts.controllers}) {
            row->setText(column++, QString::number(number));
        }
    }
}

bool DeviceSet::isValid() const
{
    return m_valid;
}

void DeviceSet::reset()
{
    m_removed.clear();
    for (auto row = m_rows.cbegin(); row != m_rows.cend(); ++row) {
        row.key()->setRemoved(false);
        paintRow(row.value(), false);
    }
    count();
}

void DeviceSet::store() const
{
    for (const DeviceEntry& device : m_devices) {
        addToDeviceSet(*m_doc, m_group.number, m_group.sceneNumber, device.ipAddress,
                       m_removed.contains(device.ipAddress));
    }
}

void DeviceSet::identifyButtonClicked(const QString& ip)
{
    identifyDevice(*m_doc, ip);
}

void DeviceSet::removeButtonClicked(bool on)
{
    QTreeWidgetItem* row = m_rows.value(qobject_cast<RemoveButton*>(sender()));
    if (row != nullptr) {
        paintRow(row, on);
        const QString address = row->text(addressColumn);
        if (on) {
            m_removed.insert(address);
        } else {
            m_removed.remove(address);
        }
        count();
    }
}
