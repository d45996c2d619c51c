#include "textlabel.h"

#include <QLabel>

QLabel* textLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* titleLabel(const QString& text, QWidget* list)
{
    auto* label = new QLabel(text, list->parentWidget());
    label->setBuddy(list);
    return label;
}
