#pragma once

#include <QHash>
#include <QList>
#include <QString>

/// The values of each series, in the order in which they were measured.
using SampleLists = QHash<QString, QList<double>>;

/// Reads lines "series<TAB>value"; a file that is not there has none.
SampleLists readSamples(const QString& path);

/// One line that says when and on what system the table was printed.
QString formatHeading();

/// The table of all comparisons in Markdown: medians, the ratio with the quartiles of its pairs,
/// the aim, and whether it is met. `instructions` holds one count per series and may be empty.
QString formatTable(const SampleLists& samples, const SampleLists& instructions);
