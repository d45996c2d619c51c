#pragma once

#include "records.h"

/// The picture that the wizard makes of a layout of these rooms.
QPixmap layoutPictureOf(const QList<RoomInfo>& rooms, const QString& layoutText);
