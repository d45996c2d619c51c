#include "pressbuttonaccessible.h"

#include "pressbutton.h"

#include <QKeySequence>

namespace {

QAccessibleInterface* createInterface(const QString& /*className*/, QObject* object)
{
    auto* button = qobject_cast<PressButton*>(object);
    return button ? new PressButtonAccessible(button) : nullptr;
}

} // namespace

PressButtonAccessible::PressButtonAccessible(PressButton* button)
    : QAccessibleWidget(button, QAccessible::Button)
{
}

void PressButtonAccessible::install()
{
    QAccessible::installFactory(createInterface);
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
    }
    return names;
}

void PressButtonAccessible::doAction(const QString& actionName)
{
    if (actionName != pressAction()) {
        QAccessibleWidget::doAction(actionName);
    } else if (button()->isEnabled()) {
        button()->press();
    }
}

QStringList PressButtonAccessible::keyBindingsForAction(const QString& actionName) const
{
    if (actionName != pressAction()) {
        return QAccessibleWidget::keyBindingsForAction(actionName);
    }
    return {QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText)};
}

PressButton* PressButtonAccessible::button() const
{
    return static_cast<PressButton*>(widget());
}
