#include "devicelocation.h"

#include "columnwidths.h"
#include "deviceclass.h"
#include "devicelabel.h"
#include "devicelimits.h"
#include "devicenamedialog.h"
#include "devicequeries.h"
#include "devicetable.h"
#include "emptylisttext.h"
#include "fontscale.h"
#include "roomcombo.h"
#include "roomeditor.h"
#include "roomkeys.h"
#include "roomqueries.h"
#include "roomsummary.h"
#include "sessionqueries.h"
#include "textlabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSet>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int pictureGap = 1;
constexpr int pictureCellSize = 13;
constexpr int labelWidth = 250;
constexpr int identifyWidth = 25;

enum Column
{
    ModelColumn = DeviceTable::IdentifyColumn + 1,
    AddressColumn,
    RoomColumn
};

/// A row that was changed may have moved to another place of a sorted table.
void showCell(const QTreeWidgetItem& row, int column)
{
    QTreeWidget* table = row.treeWidget();
    table->scrollTo(table->indexFromItem(&row, column));
}

} // namespace

DeviceLocation::DeviceLocation(IDocAccessor* doc, QWidget* parent)
    : StepContent(doc, parent)
    , m_picture(new RoomEditor(this, pictureGap, scaledToFont(pictureCellSize, this), true))
    , m_summary(new RoomSummary(this))
    , m_hubTable(createTable(QStringLiteral("hubTable"), tr("PX-HB")))
    , m_peripheralTable(createTable(QStringLiteral("peripheralTable"), tr("Peripheral")))
    , m_noHubs(new EmptyListText(m_hubTable, QString()))
    , m_noPeripherals(new EmptyListText(m_peripheralTable, QString()))
{
    m_picture->setObjectName(QStringLiteral("roomPicture"));
    m_picture->setAccessibleName(tr("Room design"));
    m_summary->setObjectName(QStringLiteral("summaryTable"));
    m_summary->setAccessibleName(tr("Devices per room"));
    buildLayout();
}

void DeviceLocation::load()
{
    m_rooms = roomCount(doc());
    drawPicture();
    QList<DeviceEntry> hubs;
    QList<DeviceEntry> peripherals;
    QHash<QString, int> roomOfAddress;
    const int devices = deviceCount(doc());
    for (int index = 0; index < devices; ++index) {
        if (const auto device = deviceAt(doc(), index)) {
            (isHub(device->modelName) ? hubs : peripherals).append(*device);
            // Addresses find the first device that has them, here as in the document.
            if (!roomOfAddress.contains(device->ipAddress)) {
                roomOfAddress.insert(device->ipAddress, device->roomNumber);
            }
        }
    }
    m_rows.clear();
    m_rows.reserve(devices);
    fill(m_hubTable, hubs, roomOfAddress);
    fill(m_peripheralTable, peripherals, roomOfAddress);
    markRepeatedRows();
    explainEmptyLists();
    updateSummary();
}

void DeviceLocation::store()
{
    for (const Row& row : std::as_const(m_rows)) {
        setDeviceRoom(doc(), row.ipAddress, row.room->room());
    }
}

void DeviceLocation::reset()
{
    // Rows sorted by room must not be sorted anew one by one while their room texts change.
    QList<DeviceTable*> sortedByRoom;
    for (DeviceTable* table : {m_hubTable, m_peripheralTable}) {
        if (table->sortColumn() == RoomColumn) {
            table->setSortingEnabled(false);
            sortedByRoom.append(table);
        }
    }
    for (const Row& row : std::as_const(m_rows)) {
        const QSignalBlocker oneRecountForAll(row.room);
        row.room->setRoom(0);
        updateRow(row);
    }
    for (DeviceTable* table : std::as_const(sortedByRoom)) {
        table->setSortingEnabled(true);
    }
    updateSummary();
}

void DeviceLocation::changeEvent(QEvent* event)
{
    StepContent::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_picture->setCellSize(scaledToFont(pictureCellSize, this));
        m_summary->setLeastHeight(m_picture->height());
    }
}

void DeviceLocation::comboBoxRoomChanged(int /*index*/)
{
    const Row* chosen = rowOfSender();
    if (chosen) {
        chooseSameRoom(*chosen);
    }
    for (const Row& row : std::as_const(m_rows)) {
        updateRow(row);
    }
    if (chosen) {
        showCell(*chosen->item, RoomColumn);
    }
    updateSummary();
}

void DeviceLocation::devItemDoubleClicked(QTreeWidgetItem* item, int column)
{
    if (column != DeviceTable::LabelColumn) {
        return;
    }
    for (const Row& row : std::as_const(m_rows)) {
        if (row.item == item) {
            rename(row);
            return;
        }
    }
}

void DeviceLocation::identifyButtonClicked(const QString& ipAddress)
{
    identifyDevice(doc(), ipAddress);
}

void DeviceLocation::deviceLabelIconClicked()
{
    if (const Row* row = rowOfSender()) {
        rename(*row);
    }
}

/// The row whose combo or pencil sent the signal that is being handled; null when none did.
const DeviceLocation::Row* DeviceLocation::rowOfSender() const
{
    const auto found =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [from = sender()](const Row& row) {
            return row.room == from || row.icon == from;
        });
    return found != m_rows.cend() ? &*found : nullptr;
}

/// A device that the document holds twice is in one room: store() goes row by row, and a second row
/// must not take back what was chosen in the first.
void DeviceLocation::chooseSameRoom(const Row& chosen)
{
    for (const Row& row : std::as_const(m_rows)) {
        if (row.ipAddress == chosen.ipAddress) {
            const QSignalBlocker oneRecountForAll(row.room);
            row.room->setRoom(chosen.room->room());
        }
    }
}

DeviceTable* DeviceLocation::createTable(const QString& name, const QString& accessibleName)
{
    const QStringList headers{tr("Hostname"),   QString(),  tr("Model"),
                              tr("IP Address"), tr("Room"), QString()};
    auto* table = new DeviceTable(headers, AddressColumn, this);
    table->setObjectName(name);
    table->setAccessibleName(accessibleName);
    table->setSortingEnabled(true);
    table->setItemDelegateForColumn(DeviceTable::LabelColumn, new DeviceLabelDelegate(table));
    new ColumnWidths(table, {{DeviceTable::LabelColumn, labelWidth},
                             {DeviceTable::IdentifyColumn, identifyWidth}});
    new RoomKeys(table, RoomColumn);
    connect(table, SIGNAL(identifyClicked(QString)), this, SLOT(identifyButtonClicked(QString)));
    connect(table, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), this,
            SLOT(devItemDoubleClicked(QTreeWidgetItem*, int)));
    return table;
}

void DeviceLocation::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textLabel(
        tr("Specify the room in which each device found on the network is located."), this));
    layout->addWidget(textLabel(tr("In each room you can have a maximum of one PX-HB, up to 16 "
                                   "microphones, and up to 15 speakers."),
                                this));
    layout->addWidget(textLabel(
        tr("The total number of microphones and speakers combined cannot exceed 16."), this));
    auto* rooms = new QHBoxLayout;
    layout->addLayout(rooms);
    rooms->addWidget(m_picture);
    rooms->addWidget(m_summary, 1);
    m_summary->setLeastHeight(m_picture->height());
    addTable(layout, tr("PX-HB"), m_hubTable, 3);
    addTable(layout, tr("Peripheral"), m_peripheralTable, 4);
}

void DeviceLocation::addTable(QVBoxLayout* layout, const QString& title, DeviceTable* table,
                              int stretch)
{
    layout->addWidget(titleLabel(title, table));
    layout->addWidget(table, stretch);
}

void DeviceLocation::drawPicture()
{
    m_picture->clear();
    for (const RoomInfo& room : drawnRooms(doc())) {
        m_picture->setRoom(room.number, room.positionList);
    }
    m_picture->update();
}

void DeviceLocation::fill(DeviceTable* table, const QList<DeviceEntry>& devices,
                          const QHash<QString, int>& roomOfAddress)
{
    const QStringList choices = RoomCombo::choices(m_rooms);
    const QString keys = RoomKeys::explanation(m_rooms);
    QList<QStringList> rows;
    for (const DeviceEntry& device : devices) {
        rows.append({device.label, QString(), device.modelName, device.ipAddress});
    }
    table->setRows(rows, [&](QTreeWidgetItem* item) {
        auto* combo = new RoomCombo(choices);
        combo->setRoom(roomOfAddress.value(table->addressOf(item)));
        combo->setToolTip(keys);
        m_rows.append(decorate(table, item, combo));
    });
}

DeviceLocation::Row DeviceLocation::decorate(DeviceTable* table, QTreeWidgetItem* item,
                                             RoomCombo* combo)
{
    Row row{item, new DeviceLabelEditIcon, combo, item->text(ModelColumn), table->addressOf(item)};
    combo->setObjectName(QStringLiteral("roomCombo_") + row.ipAddress);
    connect(combo, SIGNAL(currentIndexChanged(int)), this, SLOT(comboBoxRoomChanged(int)));
    connect(row.icon, SIGNAL(iconClicked()), this, SLOT(deviceLabelIconClicked()));
    nameWidgets(row);
    updateRow(row);
    table->setItemWidget(item, DeviceTable::LabelColumn, row.icon);
    table->setItemWidget(item, RoomColumn, combo);
    return row;
}

/// Where some devices have answered, the network is the right one and lets answers through.
void DeviceLocation::explainEmptyLists()
{
    if (isNicHandedOver(doc())) {
        explainWhatIsHandedOver();
        return;
    }
    if (m_rows.isEmpty()) {
        const QString nothing =
            tr("No device has answered yet on this network interface. Check that the devices have "
               "power and are cabled to the same network as this interface, and that no firewall "
               "and no second wizard holds UDP port 54330; then start again.");
        m_noHubs->setText(nothing);
        m_noPeripherals->setText(nothing);
        return;
    }
    m_noHubs->setText(tr("Other devices have answered, but no PX-HB yet. Check power, network "
                         "cable and firmware of the PX-HBs; then start again."));
    m_noPeripherals->setText(tr("PX-HBs have answered, but no peripheral yet. Check power, network "
                                "cable and firmware of the peripherals; then start again."));
}

/// Nothing was searched, so neither cables nor firewalls can be the reason.
void DeviceLocation::explainWhatIsHandedOver()
{
    const QString whatToDo =
        tr("The wizard was started with a network interface (-N:) and does not search: its devices "
           "are those that it was started with (-D:). Start it with the missing ones too, or "
           "without an interface, so that it searches.");
    m_noHubs->setText(tr("No PX-HB was handed over that can be configured. %1").arg(whatToDo));
    m_noPeripherals->setText(
        tr("No peripheral was handed over that can be configured. %1").arg(whatToDo));
}

/// A device that is listed twice is counted once; all rows of an address have the same room.
void DeviceLocation::markRepeatedRows()
{
    QSet<QString> addresses;
    for (Row& row : m_rows) {
        row.isRepeated = addresses.contains(row.ipAddress);
        addresses.insert(row.ipAddress);
    }
}

void DeviceLocation::nameWidgets(const Row& row)
{
    const QString label = row.item->text(DeviceTable::LabelColumn);
    row.icon->setDeviceLabel(label);
    row.room->setPurpose(tr("Room of %1").arg(label));
}

void DeviceLocation::updateRow(const Row& row)
{
    const QString text = row.room->currentText();
    if (row.item->text(RoomColumn) != text) {
        row.item->setText(RoomColumn, text);
    }
    row.icon->setIconVisible(row.room->room() != 0);
}

void DeviceLocation::updateSummary()
{
    QList<DeviceCounts> counts(m_rooms);
    for (const Row& row : std::as_const(m_rows)) {
        const int room = row.room->room();
        if (room != 0 && !row.isRepeated) {
            counts[room - 1].add(row.modelName);
        }
    }
    m_summary->showCounts(counts);
    judge(counts);
}

/// A configuration may be built on rooms of which none is beyond its limits and one holds a device.
void DeviceLocation::judge(const QList<DeviceCounts>& counts)
{
    m_missing.clear();
    bool anyDevice = false;
    for (qsizetype index = 0; index < counts.size(); ++index) {
        anyDevice = anyDevice || !counts.at(index).isEmpty();
        for (const LimitBreach& breach : breachesOfRoom(counts.at(index))) {
            m_missing.append(
                tr("Room %1 has %2.").arg(QString::number(index + 1), breachWords(breach)));
        }
    }
    if (!anyDevice) {
        m_missing.append(m_rows.isEmpty() ? noDeviceWords()
                                          : tr("Choose a room for one device or more."));
    }
    Q_EMIT nextButtonEnabled(m_missing.isEmpty());
}

QString DeviceLocation::noDeviceWords() const
{
    return isNicHandedOver(doc())
               ? tr("No device was handed over: none can be placed in a room.")
               : tr("No device has been found yet: none can be placed in a room.");
}

void DeviceLocation::rename(const Row& row)
{
    if (row.room->room() == 0) {
        return;
    }
    DeviceNameDialog dialog(row.item->text(DeviceTable::LabelColumn), this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    setDeviceLabel(doc(), row.ipAddress, dialog.name());
    static_cast<DeviceTable*>(row.item->treeWidget())->setLabel(row.item, dialog.name());
    nameWidgets(row);
    showCell(*row.item, DeviceTable::LabelColumn);
}
