#pragma once

#include <QSize>

class QWidget;

/// How much larger the font of `widget` is than the usual one of 10 points at 96 dpi; 1 for the
/// usual one and for every smaller one. Sizes in pixels are meant for the usual font.
double fontScale(const QWidget* widget);

/// `pixels` in proportion to the font of `widget`, for column widths and the like.
int scaledToFont(int pixels, const QWidget* widget);

/// What the screen that `window` is on has room for, its frame and its title bar left out.
QSize roomOnScreen(const QWidget* window);

/// `size`, of a window, in proportion to its font, but no larger than the screen that it is on has
/// room for, frame included.
QSize scaledToFont(QSize size, const QWidget* window);
