#include "contrast.h"

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

/// Added to both luminances of a ratio: light that every screen reflects.
constexpr double ambient = 0.05;
/// A gray that is mixed here aims higher than it must: rounding must not take it below.
constexpr double reserve = 1.1;
/// Per cent of brightness from one ground to the next that is tried.
constexpr int shade = 103;

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor grayOf(double luminance)
{
    const double light = std::clamp(luminance, 0.0, 1.0);
    const double channel =
        light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    const int value = int(std::lround(255 * channel));
    return {value, value, value};
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + ambient) / (darker + ambient);
}

QColor readableGray(const QColor& wanted, const QColor& ground, double needed)
{
    if (contrast(wanted, ground) >= needed) {
        return wanted;
    }
    const double aim = reserve * needed;
    const double light = luminance(ground) + ambient;
    const bool darker = contrast(ground, Qt::black) > contrast(ground, Qt::white);
    return grayOf((darker ? light / aim : light * aim) - ambient);
}

QColor readableGround(const QColor& wanted, const QColor& text)
{
    const bool darker = contrast(text, Qt::black) > contrast(text, Qt::white);
    const QColor last = darker ? Qt::black : Qt::white;
    QColor ground = wanted;
    while (contrast(ground, text) < textContrast) {
        const QColor next = darker ? ground.darker(shade) : ground.lighter(shade);
        if (next == ground) {
            return last; // the hue has no darker or lighter one
        }
        ground = next;
    }
    return ground;
}

bool isDark(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    return contrast(ground, Qt::white) > contrast(ground, Qt::black);
}
