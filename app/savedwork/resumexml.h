#pragma once

#include "savedwork.h"

#include <optional>

/// What reading takes of layouts and of the window: the wizard makes a tenth of it, and more would
/// only stall its pages. Who writes such a text from elsewhere keeps to these.
namespace SavedWorkLimit {

inline constexpr qsizetype layouts = 100;
inline constexpr qsizetype layoutText = 64; ///< letters of a layout such as "1+2/3"
inline constexpr int windowSide = 10000;    ///< pixels

} // namespace SavedWorkLimit

/// The XML text inside a resume file: the work's sections in their order. The same work gives the
/// same text.
QString writeResumeXml(const SavedWork& work);

/// Reads it back. Nothing when it does not parse to its end, when its root is another, or when its
/// page is no page of the wizard.
///
/// The text comes from outside: whatever it says, reading it ends soon and yields nothing that the
/// wizard could not have written. Numbers that do not convert count as 0; rooms of an impossible
/// number, cells off the grid and layouts of an impossible size or number are left out; a device
/// in an impossible room counts as in none.
std::optional<SavedWork> readResumeXml(const QString& text);
