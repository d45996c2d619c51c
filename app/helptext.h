#pragma once

#include <QStringList>

#include <optional>

/// What a command line (the program's name first) asks to be told instead of starting the wizard:
/// how the program is started, or its version; nothing when it asks for neither.
std::optional<QString> answerTo(const QStringList& arguments);
