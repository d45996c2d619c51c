#pragma once

#include <QString>

/// What the first password of a hub may be, whoever asks for it.
namespace FirstPassword {

inline constexpr int minLength = 4;
inline constexpr int maxLength = 16;

/// The letters that it may have, as a regular expression for all of it.
QString pattern();

/// Whether a hub can be given this one.
bool isPossible(const QString& password);

} // namespace FirstPassword
