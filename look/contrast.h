#pragma once

class QColor;
class QPalette;

/// How much one colour stands out from the other, from their relative luminances: 1 for equal
/// ones, 21 for black on white.
double contrast(const QColor& one, const QColor& other);

/// What a text needs at least to be read.
inline constexpr double readableContrast = 3.0;
/// What a text needs to be read with ease, in any size and by most eyes.
inline constexpr double textContrast = 4.5;
/// What two grounds beside each other need to be told apart.
inline constexpr double groundContrast = 1.3;

/// The colour for a text that is to be gray on `ground`: `wanted` if that has contrast enough
/// there, else a gray that has, as far from black and white as that allows. Contrasts of up to
/// `textContrast` can be had on every ground.
QColor readableGray(const QColor& wanted, const QColor& ground, double needed = readableContrast);

/// The colour for the ground of a given text: `wanted` if the text can be read there with ease,
/// else the same hue, as much darker or lighter as it takes.
QColor readableGround(const QColor& wanted, const QColor& text);

/// Whether lists are nearer to black than to white.
bool isDark(const QPalette& palette);
