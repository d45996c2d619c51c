#include "followinghall.h"

#include <QTest>

FollowingHall::FollowingHall(const QString& stage, const QString& gallery)
    : file(stage, gallery)
    , hall(*HallDescription::byCounts(0, 2, stage))
{
    QString error;
    const bool isOpen = hall.start(&error);
    QVERIFY2(isOpen, qPrintable(error));
    QVERIFY(!file.path().isEmpty());
}
