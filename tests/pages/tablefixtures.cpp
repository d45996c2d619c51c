#include "tablefixtures.h"

#include "hands.h"

#include <QLabel>
#include <QTreeWidget>

void selectGroup(const QWidget& page, int row)
{
    Hands::clickRow(tableOf(page, "roomGroupList")->topLevelItem(row));
}

QColor shownPicture(const QWidget& parent)
{
    const QPixmap picture = parent.findChild<QLabel*>(QStringLiteral("thumbnailLabel"))->pixmap();
    return picture.isNull() ? QColor() : picture.toImage().pixelColor(0, 0);
}
