#pragma once

#include <QMap>
#include <QPoint>

/// Where an arrow key leads: one step right is (1, 0), one down (0, 1). Null for other keys.
QPoint arrowStep(int key);

/// The place that an arrow's `step` leads to from `from`: the nearest one in that direction, where
/// what lies aside counts more than what lies ahead. `places` are positions by number; the result
/// is a number, `from` itself when nothing lies that way. With four places, as many as there can
/// be rooms, each can be reached from each other.
int neighbourPlace(const QMap<int, QPoint>& places, int from, QPoint step);
