#pragma once

#include "focusmark.h"

#include <QWidget>

/// A small button that paints itself: held it looks pressed, released it does its work.
///
/// A face derives from it, paints itself (paintFace) and says what the release means (activate).
/// The mouse works with any button, and a release counts wherever the pointer is by then. On the
/// keyboard Space and Return press and release. Assistive technology sees a button with a press
/// action, or a check box; its name is the accessible name, which every user of a face sets where
/// the face does not.
class PressButton : public QWidget
{
    Q_OBJECT

public:
    explicit PressButton(QWidget* parent);

    bool isPressed() const { return m_pressed; }

    /// Whether this button stays on or off until pressed again, and which of the two it is; told
    /// to assistive technology.
    virtual bool isCheckable() const { return false; }
    virtual bool isChecked() const { return false; }

    /// Does what a press and a release do together.
    void press();

protected:
    /// Paints the button, without its focus ring.
    virtual void paintFace(QPainter& painter) = 0;
    /// What the button is for; called on every release, before the repaint.
    virtual void activate() = 0;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setPressed(bool pressed);
    void release();

    FocusMark m_focusMark;
    bool m_pressed = false;
};
