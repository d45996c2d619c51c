#include "identifybutton.h"

#include "svgicon.h"

#include <QPainter>

namespace {

constexpr int side = 20;

} // namespace

IdentifyButton::IdentifyButton(const QString& ipAddress, QWidget* parent)
    : PressButton(parent)
    , m_ipAddress(ipAddress)
{
    setFixedSize(side, side);
    setAccessibleName(tr("Identify %1").arg(ipAddress));
    setToolTip(tr("Make this device identify itself"));
}

void IdentifyButton::paintFace(QPainter& painter)
{
    painter.fillRect(rect(), isPressed() ? Qt::darkGray : Qt::lightGray);
    paintSvgIcon(painter, rect(), QStringLiteral(":/image/icon_identify_bk.svg"), Qt::black);
}

void IdentifyButton::activate()
{
    Q_EMIT clicked(m_ipAddress);
}
