#pragma once

#include "devicefindings.h"
#include "halldocument.h"
#include "walkfindings.h"

#include <QDate>
#include <QPageSize>

#include <optional>

/// What the record of a hall is made from. The same gives the same record, on whatever day.
struct HallRecord
{
    HallDocument* hall = nullptr; ///< not owned
    QString fileName;             ///< of its configuration, without folders
    QDate date;                   ///< the day that it tells of
    QString dateWords;            ///< which day this is, such as "the day of the walk"
    std::optional<DeviceFindings> found;
    std::optional<WalkFindings> walk;
    QPageSize::PageSizeId paper = QPageSize::A4;
};

/// What in it is not as it should be, a line each: broken limits, and whatever the search or the
/// walk contradicts.
QStringList recordFaults(const HallRecord& record);

/// What went wrong in a walk through the hall, a line each. The record is right all the same.
QStringList walkFailures(const HallRecord& record);

/// What the search or the walk tell of devices that the hall has not, a line each.
QStringList leftOut(const HallRecord& record);
