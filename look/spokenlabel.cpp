#include "spokenlabel.h"

#include "accessiblerole.h"

#include <QShowEvent>

SpokenLabel::SpokenLabel(QWidget* parent)
    : QLabel(parent)
{
    setAccessibleRole(this, QAccessible::StatusBar);
}

void SpokenLabel::say(const QString& newText)
{
    if (newText == text()) {
        return;
    }
    // A label without a name tells of each new text by itself. With the name first and the text
    // second, or the other way round where it ends, each change is told once.
    if (newText.isEmpty()) {
        forget();
        return;
    }
    tell(newText);
    setText(newText);
}

void SpokenLabel::announce(const QString& words)
{
    if (!isVisible()) {
        return;
    }
    if (accessibleName() == words) {
        setAccessibleName(QString()); // readers take no notice of a name that stays as it is
    }
    m_announced = words;
    setAccessibleName(words);
}

void SpokenLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    const QString shown = text();
    if (!accessibleName().isEmpty()) {
        forget(); // or the same name would be taken for none, and another for this one
    }
    tell(shown);
    setText(shown);
}

void SpokenLabel::forget()
{
    setText(QString());
    setAccessibleName(QString());
    m_announced.clear();
}

void SpokenLabel::tell(const QString& words)
{
    const QString name = accessibleName();
    const bool isTold = name == words || (name == m_announced && name.contains(words));
    if (isVisible() && !isTold) {
        setAccessibleName(words);
    }
}
