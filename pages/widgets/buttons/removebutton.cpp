#include "removebutton.h"

#include "frame.h"

#include <QPainter>

namespace {

constexpr int darkening = 200;
constexpr int textMargin = 4;
constexpr QColor faceColor{0xCC, 0xCC, 0xCC};
constexpr QColor removedColor{0xCC, 0x33, 0x33};

} // namespace

RemoveButton::RemoveButton(QWidget* parent)
    : PressButton(parent)
{
    updateTexts();
}

void RemoveButton::setRemoved(bool removed)
{
    m_removed = removed;
    updateTexts();
    update();
}

void RemoveButton::setDevice(const QString& label)
{
    m_device = label;
    updateTexts();
}

QSize RemoveButton::sizeHint() const
{
    return fontMetrics().boundingRect(tr("Remove")).size() + QSize(2, 2) * textMargin;
}

void RemoveButton::paintFace(QPainter& painter)
{
    const QColor base = m_removed ? removedColor : faceColor;
    const QColor fill = isPressed() ? base.darker(darkening) : base;
    painter.fillRect(rect(), fill);
    fillFrame(painter, rect(), fill.darker(darkening));
    painter.setPen(m_removed ? Qt::white : Qt::black);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

void RemoveButton::activate()
{
    setRemoved(!m_removed);
    Q_EMIT clicked(m_removed);
}

QString RemoveButton::text() const
{
    return m_removed ? tr("Revert") : tr("Remove");
}

void RemoveButton::updateTexts()
{
    setAccessibleName(m_device.isEmpty() ? text() : text() + u' ' + m_device);
    setToolTip(m_removed ? tr("Take this device back into the set")
                         : tr("Take this device out of the set"));
}
