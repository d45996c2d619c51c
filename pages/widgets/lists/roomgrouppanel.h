#pragma once

#include "devicetable.h"
#include "roomgroup.h"

#include <QWidget>

class IDocAccessor;
class QLabel;
struct DeviceEntry;

/// The panel of one combined room of one layout, beside the list of all (RoomGroupPanels).
///
/// What a panel stores is kept apart from the lists that show it. They are built when the panel is
/// first shown, so that a page with many layouts opens at once; all else needs no list.
class RoomGroupPanel : public QWidget
{
    Q_OBJECT

public:
    /// Builds the lists unless they are there; the Tab key reaches them after `previous`. Called
    /// before the panel is shown: rows are added to lists that are not visible yet.
    void buildLists(QWidget* previous);

    /// Why what was chosen cannot be used, one sentence for each reason; the list of all panels
    /// shows it in red then. Empty when it can.
    virtual QStringList faults() const { return {}; }

    /// Writes what was chosen for every device to the document.
    virtual void store() = 0;

    /// Takes every choice back.
    virtual void reset() = 0;

public Q_SLOTS:
    void identifyButtonClicked(const QString& ipAddress);

protected:
    /// The columns of a table of devices. In one of them stands what the panel lets choose.
    enum Column
    {
        ModelColumn = DeviceTable::IdentifyColumn + 1,
        AddressColumn,
        RoomColumn,
        ChoiceColumn,
        EmptyColumn
    };

    /// `doc` is not owned and outlives the panel.
    RoomGroupPanel(RoomGroup group, IDocAccessor* doc, QWidget* parent);

    const RoomGroup& group() const { return m_group; }
    IDocAccessor& doc() const { return *m_doc; }

    /// Makes the widgets of the panel and fills its lists; the Tab key reaches them after
    /// `previous`. Called once, by buildLists().
    virtual void createLists(QWidget* previous) = 0;

    /// The picture of the layout.
    QLabel* createThumbnail();

    /// A table of devices, sorted by label, whose identify buttons work.
    DeviceTable* createTable(const QString& name, const QString& accessibleName,
                             const QString& choiceHeader);

    /// A row of such a table; its choice is left empty.
    static QStringList rowTexts(const DeviceEntry& device);

private:
    RoomGroup m_group;
    IDocAccessor* m_doc;
    bool m_built = false;
};
