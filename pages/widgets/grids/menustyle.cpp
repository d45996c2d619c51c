#include "menustyle.h"

#include "contrast.h"
#include "frame.h"

#include <QStyleOption>

MenuStyle::MenuStyle(QObject* owner)
{
    setParent(owner);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // Styles frame a box in a shade of the window, and the darkest windows have no darker one.
    if (element == PE_IndicatorCheckBox && isDark(option->palette)) {
        fillFrame(*painter, option->rect, option->palette.color(QPalette::Text));
    }
}
