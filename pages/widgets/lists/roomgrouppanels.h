#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class IDocAccessor;
class QStackedWidget;
class RoomDevices;
class RoomGroupList;
class RoomGroupPanel;
struct RoomGroup;

/// The list of all room groups on the left and, on the right, the panel of the selected one.
class RoomGroupPanels : public QWidget
{
    Q_OBJECT

public:
    /// Makes the panel of a group as a child of `parent`; `devices` are read during the call only.
    using MakePanel = std::function<RoomGroupPanel*(const RoomGroup& group, RoomDevices& devices,
                                                    QWidget* parent)>;

    /// `stackName` becomes the object name of the stack of panels.
    RoomGroupPanels(const QString& stackName, QWidget* parent);

    RoomGroupList* list() const { return m_list; }

    /// Replaces list and panels by those of the groups in the document, and selects the first.
    void load(IDocAccessor& doc, const MakePanel& makePanel);

    /// Stores every panel, in the order of the list.
    void store();

    /// Resets every panel, shown or not.
    void reset();

    /// Lists the groups whose panels have faults in red, and there what they are. Returns all of
    /// them, in list order.
    QStringList showFaults();

    /// Shows the panel of the current row, whose lists are built when it is shown first.
    void showCurrentPanel();

private:
    void buildLayout();
    void clear();

    RoomGroupList* m_list;
    QStackedWidget* m_stack;
    QList<RoomGroupPanel*> m_panels; ///< one per row, in list order; owned by the stack
};
