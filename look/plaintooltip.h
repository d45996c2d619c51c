#pragma once

#include <QString>

/// `text` as a tool tip that shows it as it is. Tool tips take a text with tags for a formatted
/// one, and names and replies from the network may hold tags.
QString plainToolTip(const QString& text);
