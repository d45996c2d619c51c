#pragma once

#include <QString>

class QPainter;
class QRect;

/// Paints the SVG file or resource at `path` into `rect`, its shape kept, crisp at any scaling of
/// the display. An icon is rendered once per size and scaling and remembered, so that hundreds of
/// buttons with the same icon cost one rendering. Paints nothing when it cannot be read.
void paintSvgIcon(QPainter& painter, const QRect& rect, const QString& path);
