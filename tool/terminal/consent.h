#pragma once

#include <QString>

class Terminal;

/// What came of a question.
enum class Consent
{
    Given,
    Refused,
    Interrupted ///< by Ctrl+C, or because the terminal is gone
};

/// Asks a question and waits for a line from standard input: "y" and "yes" agree, the end of the
/// input and everything else refuse.
Consent askForConsent(const QString& question, Terminal& terminal);
