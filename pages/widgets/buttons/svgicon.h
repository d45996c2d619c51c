#pragma once

#include <QString>

class QColor;
class QPainter;
class QRect;

/// Paints the SVG file or resource at `path` into `rect`, its shape kept, crisp at any scaling of
/// the display, and all of it in one colour. An icon is rendered once per size, scaling and colour
/// and remembered, so that hundreds of buttons with the same icon cost one rendering. Paints
/// nothing when it cannot be read.
void paintSvgIcon(QPainter& painter, const QRect& rect, const QString& path, const QColor& color);
