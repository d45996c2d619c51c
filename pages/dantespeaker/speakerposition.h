#pragma once

#include "devicequeries.h"
#include "roomgrouppanel.h"

#include <QHash>
#include <QList>

class QComboBox;
class QTreeWidgetItem;
class RoomDevices;

/// The panel of one combined room of one layout: its loudspeakers, each with the side on which it
/// stands.
class SpeakerPosition : public RoomGroupPanel
{
    Q_OBJECT

public:
    /// Takes in the loudspeakers of the rooms that were not removed from the set, each with its
    /// stored side. `doc` is not owned and outlives the panel.
    SpeakerPosition(const RoomGroup& group, RoomDevices& devices, IDocAccessor* doc,
                    QWidget* parent);

    /// Puts every speaker to the left.
    void reset() override;

    /// Writes the side of every speaker into its device set record.
    void store() override;

protected:
    void createLists(QWidget* previous) override;

private Q_SLOTS:
    void positionChosen(const QString& position);

private:
    struct Speaker
    {
        DeviceEntry device;
        QString position; ///< "L" or "R"
    };

    /// Where a box stands, and what it chooses for.
    struct Choice
    {
        QTreeWidgetItem* row;
        qsizetype index; ///< into m_speakers
    };

    void addSpeaker(const DeviceEntry& device);
    void buildLayout();
    void addRows();
    void addCombo(QTreeWidgetItem* row, qsizetype index);
    static void describeChoice(QTreeWidgetItem* row, const QString& position);

    QList<Speaker> m_speakers; ///< room by room, in document order within a room

    DeviceTable* m_speakerTable = nullptr; ///< null until the list is built
    QHash<QComboBox*, Choice> m_combos;
};
