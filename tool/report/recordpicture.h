#pragma once

#include "records.h"

#include <QByteArray>

/// The pictures of a hall's record, as PNG: what the wizard's grids show, sharp enough for print.
/// Rooms have their colours, their numbers and a hatching, since a copy in black and white loses
/// the colours; where rooms are combined, all of them have the hatching of the lowest. The same
/// rooms give the same bytes as long as the fonts are the same.

/// The rooms as they were drawn.
QByteArray drawnRoomsPng(const QList<RoomInfo>& rooms);

/// One layout of these rooms.
QByteArray layoutPng(const QList<RoomInfo>& rooms, const QString& layoutText);

/// A single cell of the drawn rooms, for a legend.
QByteArray roomSamplePng(int room);
