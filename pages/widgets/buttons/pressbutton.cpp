#include "pressbutton.h"

#include "pressbuttonaccessible.h"

#include <QKeyEvent>
#include <QPainter>

PressButton::PressButton(QWidget* parent)
    : QWidget(parent)
{
    PressButtonAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    // A right click is a click here; it must not also open the menu of what lies below.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void PressButton::press()
{
    setPressed(true);
    release();
}

void PressButton::mousePressEvent(QMouseEvent* /*event*/)
{
    m_focusMark.mouseUsed();
    setPressed(true);
}

void PressButton::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    release();
}

void PressButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        m_focusMark.keyUsed();
        setPressed(true);
    }
}

void PressButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat() && m_pressed) {
        release();
    }
}

void PressButton::focusInEvent(QFocusEvent* event)
{
    m_focusMark.focusIn(event);
    update();
}

void PressButton::focusOutEvent(QFocusEvent* /*event*/)
{
    // The release of a key held now will go elsewhere.
    setPressed(false);
    update();
}

void PressButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintFace(painter);
    if (m_focusMark.isShown(this)) {
        drawFocusRing(painter, rect());
    }
}

void PressButton::setPressed(bool pressed)
{
    if (m_pressed != pressed) {
        m_pressed = pressed;
        update();
    }
}

void PressButton::release()
{
    setPressed(false);
    update();
    activate();
}
