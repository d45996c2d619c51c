#pragma once

#include <QList>
#include <QPixmap>
#include <QString>

class IDocAccessor;

/// One combined room of one layout, as several pages list them.
struct RoomGroup
{
    int number = 0;      ///< running number over all layouts, from 1; the device set number
    int sceneNumber = 0; ///< the layout, from 1
    QList<int> rooms;    ///< the numbers of its rooms; never empty, 0 for what was no number
    QPixmap thumbnail;   ///< the layout's picture

    /// Its room numbers as they are shown, joined with ",", for example "1,2".
    QString roomText() const;
};

/// The text that names a layout of these combined rooms and that two equal layouts share: the
/// numbers in each sorted and joined with "+", the combined rooms sorted and joined with "/", for
/// example "1+2/3/4". Empty without rooms.
QString layoutText(const QList<QList<int>>& combinedRooms);

/// The combined rooms that such a text names, in its order; 0 for what is no number.
QList<QList<int>> combinedRoomsIn(QStringView layoutText);

/// All combined rooms of all layouts in the document, in layout order; those of one layout in the
/// order of its text.
QList<RoomGroup> roomGroups(IDocAccessor& doc);
