#pragma once

#include <QWidget>

class IDocAccessor;
class RoomEditor;

/// Step 2: the drawing of up to four rooms. The grid is edited here and stored as one record of
/// cells per room.
class RoomDesign : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is not owned and outlives the page.
    RoomDesign(IDocAccessor& doc, QWidget* parent);

    /// Shows the stored drawing.
    void load();
    /// Stores a drawing that has changed since it was loaded or stored; all room layouts, which
    /// were made of the earlier rooms, are discarded with it.
    void store();
    /// Empties the grid. The document keeps its drawing until the next store().
    void reset();

Q_SIGNALS:
    /// Whether the wizard may go on: a single room can be neither divided nor combined.
    void nextButtonEnabled(bool enable);

private Q_SLOTS:
    void roomCountChanged(int count);

private:
    void layOut();

    IDocAccessor& m_doc;
    RoomEditor* m_editor;
};
