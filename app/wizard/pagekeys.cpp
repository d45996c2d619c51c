#include "pagekeys.h"

#include <QAbstractButton>
#include <QShortcut>

namespace {

constexpr QKeyCombination backKey = Qt::AltModifier | Qt::Key_Left;
constexpr QKeyCombination nextKey = Qt::AltModifier | Qt::Key_Right;

QShortcut* createShortcut(QWidget* page, QKeyCombination key)
{
    auto* shortcut = new QShortcut(key, page);
    shortcut->setAutoRepeat(false);
    return shortcut;
}

QString nameOf(QKeyCombination key)
{
    return QKeySequence(key).toString(QKeySequence::NativeText);
}

} // namespace

void pressOnBackKey(QWidget* page, QAbstractButton* button)
{
    button->setToolTip(nameOf(backKey));
    QObject::connect(createShortcut(page, backKey), SIGNAL(activated()), button, SLOT(click()));
}

void pressOnNextKey(QWidget* page, QAbstractButton* button)
{
    button->setToolTip(nextKeyHint());
    QObject::connect(createShortcut(page, nextKey), SIGNAL(activated()), button, SLOT(click()));
}

void callOnNextKey(QWidget* page, const char* slot)
{
    QObject::connect(createShortcut(page, nextKey), SIGNAL(activated()), page, slot);
}

QString nextKeyHint()
{
    return nameOf(nextKey);
}
