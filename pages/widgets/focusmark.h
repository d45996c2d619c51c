#pragma once

#include <QFocusEvent>

class QPainter;
class QRect;
class QWidget;

/// Whether the keyboard brought a focus that comes for this reason.
bool isByKey(Qt::FocusReason reason);

/// Decides whether a self-painted control shows where the keyboard is: after Tab and after keys,
/// but not after the mouse, whose user sees the pointer, nor where the program put the focus.
class FocusMark
{
public:
    void focusIn(const QFocusEvent* event);
    /// The owner repaints afterwards, also when the key changes nothing else.
    void keyUsed() { m_wanted = true; }
    void mouseUsed() { m_wanted = false; }

    /// Whether `widget`, the owner of this mark, shows it now.
    bool isShown(const QWidget* widget) const;

private:
    bool m_wanted = false;
};

/// Draws a ring just inside `rect`, black outside and white inside, so that it stands out from
/// light and dark surroundings alike.
void drawFocusRing(QPainter& painter, const QRect& rect);
