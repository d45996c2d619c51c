#include "pagefixtures.h"

#include "hands.h"

#include <QLabel>
#include <QWidget>

QStringList strings(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

QStringList labelTexts(const QWidget& page)
{
    QStringList texts;
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->objectName() != QLatin1String("quietLine")) {
            texts.append(label->text());
        }
    }
    return texts;
}

void press(QWidget* widget)
{
    Hands::click(widget);
}

QStringList tabOrder(const QWidget& root)
{
    QStringList names;
    for (auto* widget = root.nextInFocusChain(); widget != &root;
         widget = widget->nextInFocusChain()) {
        if (root.isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->objectName().isEmpty()) {
            names.append(widget->objectName());
        }
    }
    return names;
}
