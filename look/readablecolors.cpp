#include "readablecolors.h"

#include "contrast.h"

#include <QEvent>
#include <QPalette>
#include <QWidget>

namespace {

QColor halfWay(const QColor& one, const QColor& other)
{
    return QColor::fromRgb((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                           (one.blue() + other.blue()) / 2);
}

} // namespace

QColor quietText(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    return readableGray(halfWay(palette.color(QPalette::Text), ground), ground, textContrast);
}

ReadableColors::ReadableColors(QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
{
    widget->installEventFilter(this);
    adjust();
}

bool ReadableColors::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        adjust();
    }
    return QObject::eventFilter(watched, event);
}

void ReadableColors::adjust()
{
    // What was adjusted before is no longer inherited, and no guide for what is to be adjusted now.
    const QPalette inherited = m_widget->parentWidget()->palette();
    QPalette palette = m_widget->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = inherited.color(group, QPalette::HighlightedText);
        const QColor ground = inherited.color(group, QPalette::Highlight);
        palette.setColor(group, QPalette::Highlight, readableGround(ground, text));
        palette.setColor(group, QPalette::PlaceholderText, quietText(inherited));
    }
    // Each change comes back as an event.
    if (palette != m_widget->palette()) {
        m_widget->setPalette(palette);
    }
}
