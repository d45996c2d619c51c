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
    if (event->type() != QEvent::KeyPress) {
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
