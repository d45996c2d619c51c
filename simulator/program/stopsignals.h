#pragma once

#include <QObject>

/// Turns the system's wishes that the program may end (Ctrl+C, a polite kill) into a signal of the
/// event loop.
class StopSignals : public QObject
{
    Q_OBJECT

public:
    /// There can be one at a time.
    explicit StopSignals(QObject* parent = nullptr);
    /// From then on they end the program at once.
    ~StopSignals() override;

Q_SIGNALS:
    /// The program is to end.
    void stopAsked();
};
