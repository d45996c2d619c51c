#pragma once

#include "stepcontent.h"

#include <QHash>
#include <QList>
#include <QString>

class DeviceLabelEditIcon;
class DeviceTable;
class EmptyListText;
class QTreeWidgetItem;
class QVBoxLayout;
class RoomCombo;
class RoomEditor;
class RoomSummary;
struct DeviceCounts;
struct DeviceEntry;

/// Step 3: every found device is placed in one of the drawn rooms and may be renamed.
///
/// The choices live in the combos until store(). A summary counts the devices per room and judges
/// them by what one conference system serves; the wizard goes on when no room is over its limits
/// and some device is placed.
class DeviceLocation : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit DeviceLocation(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Rebuilds everything from the document.
    void load() override;
    /// Writes the room of every device to the document.
    void store() override;
    /// Takes every device out of its room.
    void reset() override;
    QStringList missing() const override { return m_missing; }

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void comboBoxRoomChanged(int index);
    void devItemDoubleClicked(QTreeWidgetItem* item, int column);
    void identifyButtonClicked(const QString& ipAddress);
    void deviceLabelIconClicked();

private:
    /// One device of either table.
    struct Row
    {
        QTreeWidgetItem* item;
        DeviceLabelEditIcon* icon;
        RoomCombo* room;
        QString modelName;
        QString ipAddress;
        bool isRepeated = false; ///< an earlier row shows the same device
    };

    DeviceTable* createTable(const QString& name, const QString& accessibleName);
    void buildLayout();
    void addTable(QVBoxLayout* layout, const QString& title, DeviceTable* table, int stretch);
    void drawPicture();
    void fill(DeviceTable* table, const QList<DeviceEntry>& devices,
              const QHash<QString, int>& roomOfAddress);
    Row decorate(DeviceTable* table, QTreeWidgetItem* item, RoomCombo* combo);
    void explainEmptyLists();
    void explainWhatIsHandedOver();
    void markRepeatedRows();
    static void nameWidgets(const Row& row);
    static void updateRow(const Row& row);
    const Row* rowOfSender() const;
    void chooseSameRoom(const Row& chosen);
    void updateSummary();
    void judge(const QList<DeviceCounts>& counts);
    QString noDeviceWords() const;
    void rename(const Row& row);

    RoomEditor* m_picture;
    RoomSummary* m_summary;
    DeviceTable* m_hubTable;
    DeviceTable* m_peripheralTable;
    EmptyListText* m_noHubs;
    EmptyListText* m_noPeripherals;
    QList<Row> m_rows;
    int m_rooms = 0;
    QStringList m_missing;
};
