#pragma once

#include "devicelimits.h"
#include "devicequeries.h"
#include "roomgrouppanel.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <array>

class QTreeWidget;
class QTreeWidgetItem;
class RemoveButton;
class RoomDevices;
struct DeviceCounts;

/// The panel of one combined room of one layout: the devices that stand in its rooms, each with a
/// button that takes it out of this set or back into it, and their counts.
class DeviceSet : public RoomGroupPanel
{
    Q_OBJECT

public:
    /// Takes in the devices of the rooms; those removed according to the document stay removed.
    /// `doc` is not owned and outlives the panel.
    DeviceSet(const RoomGroup& group, RoomDevices& devices, IDocAccessor* doc, QWidget* parent);

    /// What of the set is more than a conference system supports.
    QStringList faults() const override;

    /// Takes every removed device back.
    void reset() override;

    /// Adds a record for every device, removed or not, in the order in which they were taken in.
    void store() override;

Q_SIGNALS:
    /// The set has become valid or stopped being so.
    void deviceRemoveStatusChanged();

    /// There were faults and still are, but others.
    void faultsChanged();

public Q_SLOTS:
    void removeButtonClicked(bool on);

protected:
    void createLists(QWidget* previous) override;

private:
    /// What tells a removed device by its colour.
    static constexpr std::array<int, 4> textColumns{DeviceTable::LabelColumn, ModelColumn,
                                                    AddressColumn, RoomColumn};

    void createWidgets();
    DeviceTable* createDeviceTable(const QString& name, const QString& title);
    void buildLayout();
    void chainTabOrder(QWidget* previous);
    void addRows();
    static void showRemoved(QTreeWidgetItem* row, bool removed);
    static void describeButton(QTreeWidgetItem* row, const RemoveButton& button);
    void addRemoveButton(DeviceTable* table, QTreeWidgetItem* row);
    void count();
    void showCounts(const DeviceCounts& counts);

    QList<DeviceEntry> m_devices;  ///< room by room, in document order within a room
    QSet<QString> m_removed;       ///< by address
    QList<LimitBreach> m_breaches; ///< of the devices that are not removed

    // Null until the lists are built.
    QTreeWidget* m_summaryTable = nullptr;
    DeviceTable* m_hubTable = nullptr;
    DeviceTable* m_peripheralTable = nullptr;
    QHash<RemoveButton*, QTreeWidgetItem*> m_rows; ///< by remove button
};
