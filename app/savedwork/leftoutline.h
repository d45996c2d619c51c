#pragma once

#include <QString>

#include <optional>

/// The first line of an XML text with something in it that `taken` does not say again in the same
/// place: an element, an attribute or its value. Nothing when all of it is there. What only `taken`
/// says, such as the default of an attribute, counts as little as white space, comments, and the
/// order of attributes.
///
/// Both texts have been read to their ends before, within limits; `taken` is one of ours, with no
/// text between its tags.
std::optional<qint64> firstLineLeftOut(const QString& text, const QString& taken);
