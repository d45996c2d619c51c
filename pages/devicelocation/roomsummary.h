#pragma once

#include "counttable.h"

struct DeviceCounts;

/// The table of how many devices each room holds. A count beyond what one conference system
/// serves is painted red.
class RoomSummary : public CountTable
{
    Q_OBJECT

public:
    explicit RoomSummary(QWidget* parent);

    /// Shows one row per room: `counts` of room 1, room 2, ...
    /// A count that is beyond its limit says why it is red, to eyes and to screen readers.
    void showCounts(const QList<DeviceCounts>& counts);
};
