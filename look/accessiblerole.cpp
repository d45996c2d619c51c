#include "accessiblerole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char roleProperty[] = "accessibleRole";

QAccessibleInterface* createAccessible(const QString& /*className*/, QObject* object)
{
    const QVariant role = object->property(roleProperty);
    auto* widget = role.isValid() ? qobject_cast<QWidget*>(object) : nullptr;
    return widget ? new QAccessibleWidget(widget, QAccessible::Role(role.toInt())) : nullptr;
}

} // namespace

void setAccessibleRole(QWidget* widget, QAccessible::Role role)
{
    // Needed once; more calls with the same function do nothing.
    QAccessible::installFactory(createAccessible);
    widget->setProperty(roleProperty, int(role));
}
