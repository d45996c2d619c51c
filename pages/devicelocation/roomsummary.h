#pragma once

#include <QTreeWidget>

struct DeviceCounts;

/// The table of how many devices each room holds. A count beyond what one conference system
/// serves is painted red.
class RoomSummary : public QTreeWidget
{
    Q_OBJECT

public:
    explicit RoomSummary(QWidget* parent);

    /// Shows one row per room: `counts` of room 1, room 2, ...
    /// True when a configuration may be built on them: no count is beyond its limit and there is
    /// a device in at least one room.
    bool showCounts(const QList<DeviceCounts>& counts);
};
