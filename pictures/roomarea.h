#pragma once

#include <QRegion>

class RoomGrid;
struct GridGeometry;

/// The pixels of a room: its cells and the gaps between them, so that it shows as one solid shape
/// while the gap to other rooms stays.
QRegion roomArea(const RoomGrid& grid, const GridGeometry& geometry, int room);

/// Where the room's number is written: one rectangle of its area, a wide one rather than a merely
/// large one. Empty for an empty area.
QRect roomLabelRect(const QRegion& area);
