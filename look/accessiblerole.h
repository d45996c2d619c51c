#pragma once

#include <QAccessible>

/// Tells screen readers what `widget` is, where its class does not say it. Called before they can
/// know it, so by its constructor or by whoever made it.
void setAccessibleRole(QWidget* widget, QAccessible::Role role);
