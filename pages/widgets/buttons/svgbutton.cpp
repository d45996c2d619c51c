#include "svgbutton.h"

#include "svgicon.h"

#include <QPainter>

namespace {

constexpr int side = 20;

} // namespace

SvgButton::SvgButton(const QString& iconPath, QWidget* parent)
    : PressButton(parent)
    , m_iconPath(iconPath)
{
    setFixedSize(side, side);
}

void SvgButton::paintFace(QPainter& painter)
{
    if (isPressed()) {
        painter.fillRect(rect(), Qt::lightGray);
    }
    paintSvgIcon(painter, rect(), m_iconPath);
}

void SvgButton::activate()
{
    Q_EMIT clicked();
}
