#pragma once

#include "halldocument.h"

#include <QJsonObject>
#include <QStringList>

#include <memory>

/// A hall as JSON, to be read and written by people and their programs; docs/fieldkit.md tells of
/// its keys. It holds what was entered; pictures, and which device is in which set, follow from
/// that. Where a hall holds something else than what would follow, this stands under the key
/// "exact", so that nothing is lost on the way there and back.

/// What came of reading such a text.
struct HallJsonReading
{
    std::unique_ptr<HallDocument> hall; ///< null when there are faults
    QStringList faults;                 ///< what cannot be understood; place before reason
    /// With faults, the parts that have none and depend on none that has: so that what makes no
    /// sense in them can be told as well. May be null. It is no hall to be written.
    std::unique_ptr<HallDocument> remains;
};

/// Writes it. The same hall gives the same text.
QJsonObject writeHallJson(const DocumentData& hall);

/// Reads it, and makes the pictures. Whether the hall is a sensible one is not asked; see
/// hallfaults.h.
HallJsonReading readHallJson(const QByteArray& text);
