#pragma once

#include "dialoganswerer.h"

#include <QWidget>

#include <memory>

/// The page that an installation's dialogs open over; it answers each log-in with a password.
class InstallDesk : public QWidget
{
    Q_OBJECT

public:
    void answerDialogs();
    void stopAnswering() { m_dialogs.reset(); }

public Q_SLOTS:
    /// The dialogs want to be connected to it.
    void identifyButtonClicked(const QString& ipAddress);

private:
    std::unique_ptr<DialogAnswerer> m_dialogs;
};
