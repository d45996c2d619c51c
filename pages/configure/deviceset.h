#pragma once

#include "devicequeries.h"
#include "roomgroup.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QWidget>

class DeviceTable;
class IDocAccessor;
class QTreeWidget;
class QTreeWidgetItem;
class RemoveButton;
class RoomDevices;
struct DeviceCounts;

/// The panel of one combined room of one layout: the devices that stand in its rooms, each with a
/// button that takes it out of this set or back into it, and their counts.
///
/// What is in the set is kept apart from the lists. They are built when the panel is first shown,
/// so that a page with many layouts opens at once; validity and storing need no list.
class DeviceSet : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the panel.
    DeviceSet(RoomGroup group, IDocAccessor* doc, QWidget* parent);

    /// Takes in the devices of the rooms; those removed according to the document stay removed.
    /// Called once, before anything else.
    void fill(RoomDevices& devices);

    /// Builds the lists unless they are there; the Tab key reaches them after `previous`. Called
    /// before the panel is shown: rows are added to lists that are not visible yet.
    void buildLists(QWidget* previous);

    /// True while the devices in the set are not more than a conference system supports.
    bool isValid() const;

    /// Takes every removed device back.
    void reset();

    /// Adds a record for every device, removed or not, in the order in which they were filled in.
    void store() const;

Q_SIGNALS:
    /// The set has become valid or stopped being so.
    void deviceRemoveStatusChanged();

public Q_SLOTS:
    void identifyButtonClicked(const QString& ip);
    void removeButtonClicked(bool on);

private:
    void createWidgets();
    DeviceTable* createTable(const QString& name, const QString& accessibleName);
    void buildLayout();
    void chainTabOrder(QWidget* previous);
    void addRows();
    void addRemoveButton(DeviceTable* table, QTreeWidgetItem* row);
    void count();
    void showCounts(const DeviceCounts& counts);

    RoomGroup m_group;
    IDocAccessor* m_doc;
    QList<DeviceEntry> m_devices; ///< room by room, in document order within a room
    QSet<QString> m_removed;      ///< by address
    bool m_valid = true;

    // Null until the lists are built.
    QTreeWidget* m_summaryTable = nullptr;
    DeviceTable* m_hubTable = nullptr;
    DeviceTable* m_peripheralTable = nullptr;
    QHash<RemoveButton*, QTreeWidgetItem*> m_rows; ///< by remove button
};
