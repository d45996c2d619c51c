#pragma once

class QString;

/// Appends one measured value of a series to the file named by TESSEL_BENCH_SAMPLES, one line
/// "series<TAB>value" each. The n-th value of one side and the n-th of the other were measured one
/// after the other and are compared with each other. Without the variable nothing is written.
void recordSample(const QString& series, double value);
