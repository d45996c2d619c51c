#pragma once

#include <QWidget>

class QStackedWidget;
class RoomGroupList;

/// The list of all room groups on the left and a stack of panels, one per group, on the right. What
/// the panels hold, and showing the one of the selected group, is up to the page.
class RoomGroupPanels : public QWidget
{
    Q_OBJECT

public:
    /// `stackName` becomes the object name of the stack.
    RoomGroupPanels(const QString& stackName, QWidget* parent);

    RoomGroupList* list() const { return m_list; }
    QStackedWidget* stack() const { return m_stack; }

    /// Takes all panels out of the stack and deletes them.
    void clear();

private:
    RoomGroupList* m_list;
    QStackedWidget* m_stack;
};
