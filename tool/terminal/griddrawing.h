#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A square of numbered cells as text, with a line wherever two of different numbers meet and
/// around all of them. Each line ends with a line feed.
///
/// `rows` are strings of one length, a letter for each cell; cells of the same letter belong
/// together, and `empty` ones are drawn blank.
QString drawnGrid(const QStringList& rows, QChar empty);
