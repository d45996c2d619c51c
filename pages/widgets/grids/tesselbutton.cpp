#include "tesselbutton.h"

#include <QAccessible>
#include <QPainter>

namespace {

constexpr int side = 15;
constexpr int signMargin = 2;
constexpr int darkening = 200;
constexpr QColor faceColor{0xCC, 0xCC, 0xCC};

} // namespace

TesselButton::TesselButton(QWidget* parent)
    : PressButton(parent)
{
    setFixedSize(side, side);
}

void TesselButton::setChecked(bool checked)
{
    if (m_checked == checked) {
        return;
    }
    m_checked = checked;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void TesselButton::paintFace(QPainter& painter)
{
    painter.fillRect(rect(), isPressed() ? faceColor.darker(darkening) : faceColor);
    if (m_checked) {
        const QRect sign = rect().adjusted(signMargin, signMargin, -signMargin, -signMargin);
        const QPoint center = rect().center();
        painter.fillRect(sign.left(), center.y(), sign.width(), 1, Qt::black);
        painter.fillRect(center.x(), sign.top(), 1, sign.height(), Qt::black);
    }
}

void TesselButton::activate()
{
    setChecked(!m_checked);
    Q_EMIT clicked(m_checked);
}
