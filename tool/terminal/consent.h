#pragma once

#include <QString>

class Terminal;

/// Asks a question and waits for a line from standard input; true when that is "y" or "yes". The
/// end of the input and everything else mean no.
bool isAgreedTo(const QString& question, Terminal& terminal);
