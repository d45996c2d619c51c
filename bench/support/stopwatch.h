#pragma once

#include <QString>

/// Measures the processor time that this program spends between start() and stop(); other programs
/// on the machine do not lengthen it.
///
/// Under callgrind the same stretch is counted in instructions instead, and dumped under the
/// series' name.
class Stopwatch
{
public:
    /// `series` names one side of a comparison, for example "stroke/ours".
    explicit Stopwatch(const QString& series);

    void start();
    void stop();

    double milliseconds() const { return m_milliseconds; }

    /// From now on the processor time of this other process counts as well: of a peer that answers
    /// this program on the same CPU.
    static void countPeer(int pid);

private:
    QByteArray m_series;
    double m_milliseconds = 0;
};

/// Whether this program runs under callgrind: one repetition is then enough.
bool isCountingInstructions();
