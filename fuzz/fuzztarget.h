#pragma once

#include <QByteArray>

/// What one fuzzer does with each input: calls the code under test and requires what it promises.
/// Each fuzz_NAME.cpp defines it. The bytes are not copied, so that reading past their end is
/// noticed at once.
void examine(const QByteArray& input);

/// Ends the run when a promise is broken; the fuzzer then reports the input and keeps it.
void require(bool holds, const char* promise);
