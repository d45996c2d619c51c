#pragma once

#include "devicequeries.h"
#include "roomgroup.h"

#include <QHash>
#include <QList>
#include <QWidget>

class DeviceTable;
class IDocAccessor;
class QComboBox;
class QTreeWidgetItem;
class RoomDevices;

/// The panel of one combined room of one layout: its loudspeakers, each with the side on which it
/// stands. As on the device set panel the list is built when the panel is first shown.
class SpeakerPosition : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the panel.
    SpeakerPosition(RoomGroup group, IDocAccessor* doc, QWidget* parent);

    /// Takes in the loudspeakers of the rooms that were not removed from the set, each with its
    /// stored side. Called once, before anything else.
    void fill(RoomDevices& devices);

    /// Builds the list unless it is there; the Tab key reaches it after `previous`. Called before
    /// the panel is shown: rows are added to a list that is not visible yet.
    void buildList(QWidget* previous);

    /// Puts every speaker to the left.
    void reset();

    /// Writes the side of every speaker into its device set record.
    void store() const;

public Q_SLOTS:
    void identifyButtonClicked(const QString& ip);

private Q_SLOTS:
    void positionChosen(const QString& position);

private:
    struct Speaker
    {
        DeviceEntry device;
        QString position; ///< "L" or "R"
    };

    void createWidgets();
    void buildLayout();
    void addRows();
    void addCombo(QTreeWidgetItem* row, qsizetype index);

    RoomGroup m_group;
    IDocAccessor* m_doc;
    QList<Speaker> m_speakers; ///< room by room, in document order within a room

    DeviceTable* m_speakerTable = nullptr; ///< null until the list is built
    QHash<QComboBox*, qsizetype> m_combos; ///< index into m_speakers by combo box
};
