#include "hallpicture.h"

#include "layoutpicture.h"
#include "layoutthumbnail.h"
#include "roomgroup.h"

QPixmap layoutPictureOf(const QList<RoomInfo>& rooms, const QString& layoutText)
{
    LayoutPicture picture(layoutGeometry);
    for (const RoomInfo& room : rooms) {
        picture.setRoom(room.number, room.positionList);
    }
    picture.setGroups(combinedRoomsIn(layoutText));
    return layoutThumbnail(paintedRooms(picture));
}
