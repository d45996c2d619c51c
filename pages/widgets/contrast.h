#pragma once

class QColor;

/// How much one colour stands out from the other, from their relative luminances: 1 for equal
/// ones, 21 for black on white.
double contrast(const QColor& one, const QColor& other);

/// What a text needs at least to be read.
inline constexpr double readableContrast = 3.0;

/// The colour for a text that is to be gray on `ground`: `wanted` if that can be read there, else
/// a gray that can, as far from black and white as that allows.
QColor readableGray(const QColor& wanted, const QColor& ground);
