#pragma once

#include <QList>
#include <QString>

/// How the rows of the table are made from what was measured.
enum class ComparisonKind
{
    Pair,   ///< one series divided by another
    Growth, ///< the same for a larger amount of work, divided by the ratio for the smaller one
    Value   ///< one series as it is
};

/// One row of the table: what is compared with what, and how far apart the two may be.
struct Comparison
{
    ComparisonKind kind = ComparisonKind::Pair;
    QString what;
    QString unit;
    QString measured;  ///< the series that is judged; of a growth, the row with more work
    QString reference; ///< the series that it is divided by; of a growth, the row with less work
    double aim = 0;    ///< the largest ratio, or value; 0 = for information only
};

/// All rows, in the order of the table.
QList<Comparison> allComparisons();

/// The series of either side of a row.
QString oursOf(const QString& row);
QString floorOf(const QString& row);
