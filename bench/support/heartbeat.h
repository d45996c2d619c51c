#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QString>

/// Listens for stalls: beats every millisecond while the event loop is alive, and notes the longest
/// time between two beats, whether the program worked or slept. Only the time in which it waited
/// for a processor that other programs held does not count.
class Heartbeat : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void start();
    void stop() { m_timer.stop(); }

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
