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
    QString roomText;    ///< its room numbers joined with ",", for example "1,2"
    QPixmap thumbnail;   ///< the layout's picture

    /// The numbers in roomText, in its order.
    QList<int> roomNumbers() const;
};

/// All combined rooms of all layouts in the document, in layout order.
QList<RoomGroup> roomGroups(IDocAccessor& doc);
