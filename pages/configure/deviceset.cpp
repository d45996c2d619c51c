#include "deviceset.h"

#include "counttable.h"
#include "deviceclass.h"
#include "devicetable.h"
#include "emptylisttext.h"
#include "removebutton.h"
#include "removedtextdelegate.h"
#include "roomdevices.h"
#include "rowdelegate.h"
#include "setqueries.h"
#include "textlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int hubStretch = 1;
constexpr int peripheralStretch = 3;

} // namespace

DeviceSet::DeviceSet(const RoomGroup& group, RoomDevices& devices, IDocAccessor* doc,
                     QWidget* parent)
    : RoomGroupPanel(group, doc, parent)
    , m_devices(devices.in(group.rooms))
{
    QStringList addresses;
    for (const DeviceEntry& device : std::as_const(m_devices)) {
        addresses.append(device.ipAddress);
    }
    m_removed = removedDevices(*doc, group.number, group.sceneNumber, addresses);
    count();
}

void DeviceSet::createLists(QWidget* previous)
{
    createWidgets();
    buildLayout();
    chainTabOrder(previous);
    addRows();
    count();
}

void DeviceSet::createWidgets()
{
    m_summaryTable = new CountTable(
        {tr("PX-HB"), tr("Microphone"), tr("Speaker"), tr("Controller"), QString()}, 1, {}, this);
    m_summaryTable->setObjectName(QStringLiteral("summaryTable"));
    m_summaryTable->setAccessibleName(tr("Number of devices in this set"));
    m_summaryTable->setItemDelegate(new RowDelegate(m_summaryTable));
    m_summaryTable->addTopLevelItem(new QTreeWidgetItem);
    m_hubTable = createDeviceTable(QStringLiteral("hubTable"), tr("PX-HB"));
    m_peripheralTable = createDeviceTable(QStringLiteral("peripheralTable"), tr("Peripheral"));
    new EmptyListText(m_hubTable, tr("No PX-HB stands here."));
    new EmptyListText(m_peripheralTable, tr("No peripheral stands here."));
}

DeviceTable* DeviceSet::createDeviceTable(const QString& name, const QString& title)
{
    DeviceTable* table = createTable(name, title, QString());
    auto* delegate = new RemovedTextDelegate(table);
    for (const int column : textColumns) {
        table->setItemDelegateForColumn(column, delegate);
    }
    return table;
}

void DeviceSet::buildLayout()
{
    auto* top = new QHBoxLayout;
    top->addWidget(createThumbnail(), 0, Qt::AlignTop);
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
        rows.append(rowTexts(device));
    }
    m_hubTable->setRows(hubs, [this](QTreeWidgetItem* row) { addRemoveButton(m_hubTable, row); });
    m_peripheralTable->setRows(
        peripherals, [this](QTreeWidgetItem* row) { addRemoveButton(m_peripheralTable, row); });
}

/// For eyes and, since screen readers see no colour, in words.
void DeviceSet::showRemoved(QTreeWidgetItem* row, bool removed)
{
    // A device in the set has no colour of ours: its texts are in that of the list.
    const QVariant color = removed ? QBrush(RemovedTextDelegate::textColor) : QVariant();
    const QVariant words = removed ? tr("removed") : QVariant();
    for (const int column : textColumns) {
        row->setData(column, Qt::ForegroundRole, color);
        row->setData(column, Qt::AccessibleDescriptionRole, words);
    }
    const QString label = row->text(DeviceTable::LabelColumn);
    row->setData(DeviceTable::LabelColumn, Qt::AccessibleTextRole,
                 removed ? tr("%1, removed").arg(label) : QVariant());
}

/// The cell says what its button shows.
void DeviceSet::describeButton(QTreeWidgetItem* row, const RemoveButton& button)
{
    row->setData(ChoiceColumn, Qt::AccessibleTextRole, button.text());
}

void DeviceSet::addRemoveButton(DeviceTable* table, QTreeWidgetItem* row)
{
    const bool removed = m_removed.contains(table->addressOf(row));
    auto* button = new RemoveButton(table);
    button->setDevice(row->text(DeviceTable::LabelColumn));
    button->setRemoved(removed);
    table->setItemWidget(row, ChoiceColumn, button);
    if (removed) {
        showRemoved(row, removed);
    }
    describeButton(row, *button);
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
    const QList<LimitBreach> before = std::exchange(m_breaches, breachesOfSet(counts));
    if (m_breaches.isEmpty() != before.isEmpty()) {
        Q_EMIT deviceRemoveStatusChanged();
    } else if (m_breaches != before) {
        Q_EMIT faultsChanged();
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

QStringList DeviceSet::faults() const
{
    QStringList faults;
    for (const LimitBreach& breach : m_breaches) {
        faults.append(tr("Layout %1, room %2 has %3.")
                          .arg(QString::number(group().sceneNumber), group().roomText(),
                               breachWords(breach)));
    }
    return faults;
}

void DeviceSet::reset()
{
    m_removed.clear();
    for (auto row = m_rows.cbegin(); row != m_rows.cend(); ++row) {
        row.key()->setRemoved(false);
        showRemoved(row.value(), false);
        describeButton(row.value(), *row.key());
    }
    count();
}

void DeviceSet::store()
{
    for (const DeviceEntry& device : std::as_const(m_devices)) {
        addToDeviceSet(doc(), group().number, group().sceneNumber, device.ipAddress,
                       m_removed.contains(device.ipAddress));
    }
}

void DeviceSet::removeButtonClicked(bool on)
{
    auto* button = qobject_cast<RemoveButton*>(sender());
    QTreeWidgetItem* row = m_rows.value(button);
    if (row != nullptr) {
        showRemoved(row, on);
        describeButton(row, *button);
        const QString address = row->text(AddressColumn);
        if (on) {
            m_removed.insert(address);
        } else {
            m_removed.remove(address);
        }
        count();
    }
}
