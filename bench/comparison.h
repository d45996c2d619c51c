#pragma once

#include <QList>
#include <QString>

/// One row of the table: what is compared with what, and how far apart the two may be.
struct Comparison
{
    QString what;
    QString unit;      ///< of both series
    QString measured;  ///< the series that is judged
    QString reference; ///< the series that it is divided by; empty: it is judged as it is
    double aim = 0;    ///< the largest ratio, or value
};

/// All rows, in the order of the table.
QList<Comparison> allComparisons();
