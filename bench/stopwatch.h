#pragma once

#include <QString>

/// Measures the stretch between start() and stop() in milliseconds, on two clocks: the wall's, and
/// the processor time of this program, which other programs on the machine do not lengthen.
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

    double wallMs() const { return m_wallMs; }
    double processorMs() const { return m_processorMs; }

    /// From now on the processor time of this other process counts as well: of a peer that answers
    /// this program on the same CPU.
    static void countPeer(int pid);

private:
    QByteArray m_series;
    double m_wallMs = 0;
    double m_processorMs = 0;
};

/// Whether this program runs under callgrind: one repetition is then enough.
bool isCountingInstructions();
