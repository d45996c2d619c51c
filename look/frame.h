#pragma once

class QColor;
class QPainter;
class QRect;

/// Draws the outermost pixels of `rect`. Filled rather than drawn with a pen, which on a scaled
/// display would lie half outside.
void fillFrame(QPainter& painter, const QRect& rect, const QColor& color);
