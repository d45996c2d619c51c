#pragma once

#include "roomgroup.h"
#include "stepcontent.h"

#include <QLineEdit>
#include <QList>

class QLabel;
class RoomGroupList;

/// The field for the name of one combined room's preset: one line, no longer than names of
/// presets are.
class PresetNameEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PresetNameEdit(const QString& name, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void tellHiddenText();
};

/// Content of the preset naming step: every combined room of every layout with a field for the
/// name of its preset, beside the picture of the selected room's layout.
class CreatePreset : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit CreatePreset(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Lists the combined rooms anew, with the names stored for them.
    void load() override;

    /// Replaces the stored presets by the listed ones; empty names are stored as they are.
    void store() override;

    /// Empties every name field.
    void reset() override;

public Q_SLOTS:
    /// Shows the layout that the current row belongs to.
    void deviceSetSelected();

private Q_SLOTS:
    void nameChanged(const QString& name);

private:
    void createWidgets();
    void buildLayout();
    void addNameFields();
    PresetNameEdit* nameField(const RoomGroup& group);

    RoomGroupList* m_groupList = nullptr;
    QLabel* m_thumbnail = nullptr;
    QList<RoomGroup> m_groups;
    QList<PresetNameEdit*> m_nameFields; ///< one per group; owned by the list
};
