#pragma once

/// How much of a hall the wizard lets its users enter.
namespace HallLimits {

inline constexpr int maxLayoutCount = 10;
inline constexpr int maxPresetNameLength = 255;

} // namespace HallLimits
