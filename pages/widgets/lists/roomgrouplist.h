#pragma once

#include "roomgroup.h"
#include "rowlist.h"

/// The list of all combined rooms of all layouts: the running number, the layout's number, and
/// the room numbers in white on the colour of the first of them. Further columns are the page's.
class RoomGroupList : public RowList
{
    Q_OBJECT

public:
    enum Column
    {
        NumberColumn,
        LayoutColumn,
        RoomColumn
    };

    /// One column per header; `widths` are those of the first columns, in pixels for the usual
    /// font.
    RoomGroupList(const QStringList& headers, const QList<int>& widths, QWidget* parent = nullptr);

    /// Replaces all rows. No row is current afterwards, and itemSelectionChanged() is not emitted:
    /// meanwhile the rows of before would seem to be selected.
    void setGroups(const QList<RoomGroup>& groups);

    /// The index of the current group; -1 for none.
    int currentGroup() const;

    /// Makes the row of a group current and selects it; an index beyond the groups changes nothing.
    void selectGroup(int index);
};
