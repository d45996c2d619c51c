#pragma once

#include <QBasicTimer>
#include <QObject>

/// A timer of 5 ms that notices how long the event loop did not come round to it.
///
/// It counts the processor time of this program between two beats: what the program itself did in
/// one go, whatever else ran on the machine.
class Heartbeat : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void start();

    /// The longest stall so far in milliseconds, and what was being done.
    double longestMs() const { return m_longestMs; }
    const QString& longestDuring() const { return m_longestDuring; }

    /// What is being done from now on, for the report.
    void setActivity(const QString& activity) { m_activity = activity; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    double m_lastBeatMs = 0;
    double m_longestMs = 0;
    QString m_activity;
    QString m_longestDuring;
};
