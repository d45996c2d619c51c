#pragma once

/// How much of a hall there can be.
namespace HallLimits {

/// What the wizard lets its users enter.
inline constexpr int maxLayoutCount = 10;
inline constexpr int maxPresetNameLength = 255;

/// What is read of a file: ten times as much, since more is none of the wizard's making and would
/// only stall its pages.
inline constexpr int maxReadLayoutCount = 100;
inline constexpr int maxReadLayoutLength = 64;  ///< letters of one such as "1+2/3"
inline constexpr int maxReadWindowSide = 10000; ///< pixels

} // namespace HallLimits
