#pragma once

#include "records.h"

#include <QByteArray>

/// The pictures of a hall's record, as PNG: what the wizard's grids show, sharp enough for print.
/// Rooms have their colours and their numbers; where rooms are combined, all of them also have the
/// hatching of the lowest, since a copy in black and white loses the colours. The same rooms give
/// the same bytes as long as the fonts are the same.

/// The rooms as they were drawn.
QByteArray drawnRoomsPng(const QList<RoomInfo>& rooms);

/// One layout of these rooms.
QByteArray layoutPng(const QList<RoomInfo>& rooms, const QString& layoutText);

/// A single cell of a room, for a legend.
QByteArray roomSamplePng(int room);
