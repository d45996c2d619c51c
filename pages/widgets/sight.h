#pragma once

class QRect;
class QWidget;

/// Scrolls whatever `widget` lies in so far that `place` of it is in sight, for a keyboard that
/// moves within a widget that is larger than the room for it.
void bringIntoSight(const QWidget* widget, const QRect& place);
