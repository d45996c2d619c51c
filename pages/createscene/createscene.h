#pragma once

#include "stepcontent.h"

#include <QMap>

class QPushButton;
class QTreeWidgetItem;
class RowList;
class SceneItem;
class Tessel;
struct SceneInfo;

/// Step 4: the room layouts. The picker on the left combines rooms; "Add Layout" puts what it
/// shows into the numbered list, up to ten different layouts. The wizard goes on with one or more.
class CreateScene : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit CreateScene(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Shows the drawn rooms, unlinked, and the stored layouts.
    void load() override;
    /// Replaces the stored layouts by those listed.
    void store() override;
    /// Removes all layouts, the stored ones at once. The picker keeps its links.
    void reset() override;
    QStringList missing() const override;

private Q_SLOTS:
    void addButtonClicked();
    void removeButtonClicked();

private:
    void createWidgets();
    void buildLayout();
    void loadRooms();
    void loadLayouts();
    void clearList();
    void appendRow(const SceneInfo& layout);
    QTreeWidgetItem* passFocusOn(QTreeWidgetItem* row);
    SceneItem* itemOf(QTreeWidgetItem* row) const;
    QWidget* lastTabStop() const;
    QTreeWidgetItem* rowOf(const QString& roomGroup) const;
    void updateButtons();

    Tessel* m_tessel;
    QPushButton* m_addButton = nullptr;
    RowList* m_list = nullptr;
    QMap<SceneItem*, QTreeWidgetItem*> m_rows;
};
