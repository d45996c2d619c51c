#pragma once

#include <QString>

/// Reading the answers of the text-command port: each is one line of words, the words separated by
/// single spaces. All functions take the text of a whole answer and never fail; what is missing
/// reads as empty text or 0.
namespace ScpAnswer {

/// The text between the first two double quotes; empty when there are fewer than two.
QString quotedText(const QString& answer);

/// The fourth word of the answer's first line, without the line's end; empty parts between two
/// spaces count as words. Empty when the line is shorter.
QString fourthWord(const QString& answer);

/// The fourth word as a decimal number; 0 when it is none.
int fourthWordNumber(const QString& answer);

/// The active preset from the answer to the current-preset question: the fourth word of an answer
/// whose first word is "OK" and which has at least three words; otherwise empty.
QString currentPreset(const QString& answer);

} // namespace ScpAnswer
