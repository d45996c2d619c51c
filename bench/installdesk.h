#pragma once

#include <QBasicTimer>
#include <QWidget>

/// The page that an installation's dialogs open over; it answers each with a password.
class InstallDesk : public QWidget
{
    Q_OBJECT

public:
    void answerDialogs();
    void stopAnswering() { m_timer.stop(); }

public Q_SLOTS:
    /// The dialogs want to be connected to it.
    void identifyButtonClicked(const QString& ipAddress);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
};
