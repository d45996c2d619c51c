#include "svgbutton.h"

#include "contrast.h"
#include "ground.h"
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
    const QColor ground = isPressed() ? QColor(Qt::lightGray) : groundOf(this);
    if (isPressed()) {
        painter.fillRect(rect(), ground);
    }
    const QColor text = palette().color(QPalette::Text);
    paintSvgIcon(painter, rect(), m_iconPath, readableGray(text, ground, textContrast));
}

void SvgButton::activate()
{
    Q_EMIT clicked();
}
