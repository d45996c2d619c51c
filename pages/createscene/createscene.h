#pragma once

#include <QMap>
#include <QWidget>

class FocusedRow;
class IDocAccessor;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class SceneItem;
class Tessel;
struct SceneInfo;

/// Step 4: the room layouts. The picker on the left combines rooms; "Add Layout" puts what it
/// shows into the numbered list, up to ten different layouts.
class CreateScene : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the page.
    CreateScene(IDocAccessor& doc, QWidget* parent);

    /// Shows the drawn rooms, unlinked, and the stored layouts.
    void initialise();
    /// Replaces the stored layouts by those listed.
    void store();
    /// Removes all layouts, the stored ones at once. The picker keeps its links.
    void reset();

Q_SIGNALS:
    /// Whether the wizard may go on: there is a layout.
    void nextButtonEnabled(bool enable);

private Q_SLOTS:
    void addButtonClicked();
    void removeButtonClicked();

private:
    void createWidgets();
    void layOut();
    void loadRooms();
    void loadLayouts();
    void clearList();
    void appendRow(const SceneInfo& layout);
    QTreeWidgetItem* passFocusOn(QTreeWidgetItem* row);
    SceneItem* itemOf(QTreeWidgetItem* row) const;
    QWidget* lastTabStop() const;
    QTreeWidgetItem* rowOf(const QString& roomGroup) const;
    void updateButtons();

    IDocAccessor& m_doc;
    Tessel* m_tessel;
    QPushButton* m_addButton = nullptr;
    QTreeWidget* m_list = nullptr;
    FocusedRow* m_focusedRow = nullptr;
    QMap<SceneItem*, QTreeWidgetItem*> m_rows;
};
