#pragma once

#include "savedwork.h"

#include <optional>

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
