#pragma once

class QColor;
class QWidget;

/// The colour that lies behind `widget`, which paints no ground of its own: in a list that of its
/// row, selected or not, elsewhere that of the window.
QColor groundOf(const QWidget* widget);
