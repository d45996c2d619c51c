#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

class DeviceLabelEditIcon;
class DeviceTable;
class IDocAccessor;
class QTreeWidgetItem;
class QVBoxLayout;
class RoomCombo;
class RoomEditor;
class RoomSummary;
struct DeviceEntry;

/// Step 3: every found device is placed in one of the drawn rooms and may be renamed.
///
/// The choices live in the combos until save(). A summary counts the devices per room and judges
/// them by what one conference system serves.
class DeviceLocation : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the page.
    DeviceLocation(IDocAccessor& doc, QWidget* parent);

    /// Rebuilds everything from the document. Meant for a page that is not visible yet: filling
    /// visible tables costs a layout per row.
    void reload();
    /// Writes the room of every device to the document.
    void save();
    /// Takes every device out of its room.
    void reset();

Q_SIGNALS:
    /// Whether the wizard may go on: no room is over its limits and some device is placed.
    void nextButtonEnabled(bool enable);

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
    void layOut();
    void addTable(QVBoxLayout* layout, const QString& title, DeviceTable* table, int stretch);
    void drawPicture();
    void fill(DeviceTable* table, const QList<DeviceEntry>& devices,
              const QHash<QString, int>& roomOfAddress);
    Row decorate(DeviceTable* table, QTreeWidgetItem* item, RoomCombo* combo);
    void markRepeatedRows();
    static void nameWidgets(const Row& row);
    static void updateRow(const Row& row);
    const Row* rowOfSender() const;
    void chooseSameRoom(const Row& chosen);
    void updateSummary();
    void rename(const Row& row);

    IDocAccessor& m_doc;
    RoomEditor* m_picture;
    RoomSummary* m_summary;
    DeviceTable* m_hubTable;
    DeviceTable* m_peripheralTable;
    QList<Row> m_rows;
    int m_rooms = 0;
};
