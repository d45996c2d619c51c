#include "pressbutton.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>

namespace {

/// What can be checked is a check box to assistive technology, which toggles those.
bool isOurs(const QString& actionName)
{
    return actionName == QAccessibleActionInterface::pressAction() ||
           actionName == QAccessibleActionInterface::toggleAction();
}

bool pressesButtons(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// What assistive technology sees of a PressButton: a button that can be pressed, or a check box
/// where its face can be checked.
class PressButtonAccessible : public QAccessibleWidget
{
public:
    explicit PressButtonAccessible(PressButton* button);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    PressButton* button() const;
};

PressButtonAccessible::PressButtonAccessible(PressButton* button)
    : QAccessibleWidget(button, button->isCheckable() ? QAccessible::CheckBox : QAccessible::Button)
{
}

QAccessible::State PressButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isPressed();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    return state;
}

QStringList PressButtonAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (button()->isEnabled()) {
        names.prepend(pressAction());
        if (button()->isCheckable()) {
            names.prepend(toggleAction());
        }
    }
    return names;
}

void PressButtonAccessible::doAction(const QString& actionName)
{
    if (!isOurs(actionName)) {
        QAccessibleWidget::doAction(actionName);
    } else if (button()->isEnabled()) {
        button()->press();
    }
}

QStringList PressButtonAccessible::keyBindingsForAction(const QString& actionName) const
{
    if (!isOurs(actionName)) {
        return QAccessibleWidget::keyBindingsForAction(actionName);
    }
    return {QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText)};
}

PressButton* PressButtonAccessible::button() const
{
    return static_cast<PressButton*>(widget());
}

QAccessibleInterface* createAccessible(const QString& /*className*/, QObject* object)
{
    auto* button = qobject_cast<PressButton*>(object);
    return button ? new PressButtonAccessible(button) : nullptr;
}

} // namespace

PressButton::PressButton(QWidget* parent)
    : QWidget(parent)
{
    // Needed once; more calls with the same function do nothing.
    QAccessible::installFactory(createAccessible);
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
    // Whichever key it is, its user looks for where the keyboard is.
    m_focusMark.keyUsed();
    update();
    if (!pressesButtons(event->key())) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        setPressed(true);
    }
}

void PressButton::keyReleaseEvent(QKeyEvent* event)
{
    if (!pressesButtons(event->key())) {
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
