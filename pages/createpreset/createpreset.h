#pragma once

#include "roomgroup.h"

#include <QLineEdit>
#include <QList>
#include <QWidget>

class IDocAccessor;
class QLabel;
class RoomGroupList;

/// The field for the name of one combined room's preset: one line of at most 255 characters.
class PresetNameEdit : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr int maxNameLength = 255;

    explicit PresetNameEdit(const QString& name, QWidget* parent = nullptr);
};

/// Content of the preset naming step: every combined room of every layout with a field for the
/// name of its preset, beside the picture of the selected room's layout.
class CreatePreset : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the widget.
    CreatePreset(IDocAccessor* doc, QWidget* parent);

    /// Lists the combined rooms anew, with the names stored for them.
    void initialise();

    /// Replaces the stored presets by the listed ones; empty names are stored as they are.
    void store() const;

    /// Empties every name field.
    void reset();

public Q_SLOTS:
    /// Shows the layout that the current row belongs to.
    void deviceSetSelected();

private:
    void createWidgets();
    void layOut();
    void addNameFields();
    PresetNameEdit* nameField(const RoomGroup& group);

    IDocAccessor* m_doc;
    RoomGroupList* m_groupList = nullptr;
    QLabel* m_thumbnail = nullptr;
    QList<RoomGroup> m_groups;
    QList<PresetNameEdit*> m_nameFields; ///< one per group; owned by the list
};
