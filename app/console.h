#pragma once

class QString;

/// Writes to the standard output of whoever started the program; false when it cannot be written
/// to.
bool writeToOutput(const QString& text);

/// Writes to the standard error of whoever started the program, if it has one.
void writeToErrors(const QString& text);
