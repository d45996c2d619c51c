#pragma once

#include <QEventLoop>

/// Runs the event loop until so many things have happened.
class Countdown : public QObject
{
    Q_OBJECT

public:
    explicit Countdown(int count)
        : m_left(count)
    {
    }

    /// Returns when done() has been called often enough.
    void wait();

public Q_SLOTS:
    void done();

private:
    int m_left;
    QEventLoop m_loop;
};
