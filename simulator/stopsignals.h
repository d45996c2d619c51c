#pragma once

#include <QObject>

/// Turns the system's wishes that the program may end (Ctrl+C, a polite kill) into a signal of the
/// event loop. Does nothing on systems that end programs in another way.
class StopSignals : public QObject
{
    Q_OBJECT

public:
    /// There can be one at a time.
    explicit StopSignals(QObject* parent = nullptr);

Q_SIGNALS:
    /// The program is to end.
    void stopAsked();
};
