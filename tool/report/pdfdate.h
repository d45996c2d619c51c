#pragma once

#include <QByteArray>
#include <QDate>

/// A PDF that says it was made at the beginning of a day, UTC, instead of now in the zone of this
/// computer. Qt has no operation for it, and writes the date at a length that depends on the zone,
/// so that everything behind it moves and the file's table of places is corrected. A file that is
/// not as Qt writes it is handed back as it is.
QByteArray withCreationDate(const QByteArray& pdf, QDate day);
