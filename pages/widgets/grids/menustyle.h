#pragma once

#include <QProxyStyle>

/// Draws a menu as the desktop does, with check boxes that can be seen in the dark.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Belongs to `owner`, usually the menu.
    explicit MenuStyle(QObject* owner);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
