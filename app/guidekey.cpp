#include "guidekey.h"

#include <QCoreApplication>
#include <QKeyEvent>

GuideKey::GuideKey(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool GuideKey::eventFilter(QObject* watched, QEvent* event)
{
    // Each key comes to the system's window first, and then to the widget in it.
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
        return QObject::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) {
        return QObject::eventFilter(watched, event);
    }
    if (!key->isAutoRepeat()) {
        Q_EMIT pressed();
    }
    return true;
}
