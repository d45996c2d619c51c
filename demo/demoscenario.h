#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

/// A device of the demo's hall.
struct DemoDevice
{
    QString address;
    QString macAddress;
    QString modelName;
    QString label; ///< as the device reports it
    int room = 0;  ///< where the demo places it

    bool isHub() const;
    bool isSpeaker() const;
};

/// One room layout and how the user gets there from the one before.
struct DemoLayout
{
    QString roomGroup;                ///< for example "1+2/3/4"
    QList<QPair<int, int>> linkBoxes; ///< link boxes to press
    QList<QPair<int, int>> menuLinks; ///< room menu entries to choose
};

/// A combined room of one layout.
struct DemoGroup
{
    int number = 0;     ///< running number over all layouts, from 1
    int layout = 0;     ///< from 1
    QList<int> rooms;   ///< in the order of the group's text
    QString presetName; ///< what the user types
};

/// What the demo's user enters, and what follows from it for every hub.
///
/// Everything is worked out from the hall and from the lists here, without the wizard's own code,
/// so that the comparison with the hubs at the end is one between two independent accounts.
class DemoScenario
{
public:
    /// The window's size when the work is saved; it has to come back with it.
    static constexpr QSize savedWindowSize{1000, 760};

    /// The hubs come first in `devices`; the k-th hub goes to room k.
    explicit DemoScenario(QList<DemoDevice> devices);

    const QList<DemoDevice>& devices() const { return m_devices; }
    const QList<DemoLayout>& layouts() const { return m_layouts; }
    const QList<DemoGroup>& groups() const { return m_groups; }
    /// The cells of a room in the order in which the user draws over them.
    QList<QPoint> cellsOfRoom(int room) const;
    /// New labels by address.
    const QHash<QString, QString>& renames() const { return m_renames; }
    QString labelOf(const DemoDevice& device) const;

    /// The devices that stand in the rooms of a group.
    QList<DemoDevice> devicesOf(const DemoGroup& group) const;
    /// Whether the user takes a device out of a group.
    bool isRemoved(const DemoGroup& group, const DemoDevice& device) const;
    /// "L" or "R".
    QString positionOf(const DemoDevice& device) const;
    /// The group that a room belongs to in a layout.
    const DemoGroup& groupOf(int layout, int room) const;
    /// The devices whose settings a hub gets in a layout; none when it is out of its group.
    QList<DemoDevice> peripheralsOf(const DemoDevice& hub, int layout) const;

private:
    QList<DemoDevice> m_devices;
    QList<DemoLayout> m_layouts;
    QList<DemoGroup> m_groups;
    QHash<QString, QString> m_renames;
};
