#pragma once

#include "stepcontent.h"

class RoomEditor;

/// Step 2: the drawing of up to four rooms. The grid is edited here and stored as one record of
/// cells per room. The wizard goes on with two rooms or more: a single one can be neither divided
/// nor combined.
class RoomDesign : public StepContent
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the content.
    explicit RoomDesign(IDocAccessor* doc, QWidget* parent = nullptr);

    /// Shows the stored drawing.
    void load() override;
    /// Stores a drawing that has changed since it was loaded or stored; all room layouts, which
    /// were made of the earlier rooms, are discarded with it.
    void store() override;
    /// Empties the grid. The document keeps its drawing until the next store().
    void reset() override;
    QStringList missing() const override;

private Q_SLOTS:
    void roomCountChanged(int count);
    void roomRefused();

private:
    void buildLayout();

    RoomEditor* m_editor;
};
