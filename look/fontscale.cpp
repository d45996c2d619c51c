#include "fontscale.h"

#include <QFont>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

constexpr double pointsPerInch = 72.0;
constexpr double usualPixels = 10.0 * 96.0 / pointsPerInch;
/// What the system puts around a window: a frame, and a title bar that is high.
constexpr QSize decoration(16, 40);

double pixelsOf(const QWidget* widget)
{
    const QFont& font = widget->font();
    return font.pixelSize() > 0 ? font.pixelSize()
                                : font.pointSizeF() * widget->logicalDpiY() / pointsPerInch;
}

} // namespace

double fontScale(const QWidget* widget)
{
    return std::max(1.0, pixelsOf(widget) / usualPixels);
}

int scaledToFont(int pixels, const QWidget* widget)
{
    return qRound(pixels * fontScale(widget));
}

QSize roomOnScreen(const QWidget* window)
{
    return window->screen()->availableGeometry().size() - decoration;
}

QSize scaledToFont(QSize size, const QWidget* window)
{
    return (QSizeF(size) * fontScale(window)).toSize().boundedTo(roomOnScreen(window));
}
