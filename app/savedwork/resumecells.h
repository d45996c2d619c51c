#pragma once

#include <QList>
#include <QPoint>
#include <QString>

/// The cells of a room as text, "{x,y}" joined with "/", and back. Reading skips whatever is no
/// cell of the 8 x 8 grid and what was named before.
QString writeCells(const QList<QPoint>& cells);
QList<QPoint> readCells(QStringView text);
