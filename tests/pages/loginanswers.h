#pragma once

#include "dialoganswerer.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QStringList>

#include <functional>

/// Plays the user in front of the dialogs that ask for the hubs' passwords: answers every dialog
/// that comes up, with keys, as long as this object lives.
class LoginAnswers
{
public:
    /// Answers with `password` unless told otherwise for a hub.
    explicit LoginAnswers(const QString& password);

    /// The passwords to type for one hub, one per prompt; afterwards the common one.
    void type(const QString& hub, const QStringList& passwords);
    /// Presses Escape in the dialog of this hub, once.
    void cancel(const QString& hub);
    /// Presses Escape in every dialog of this hub after so many answers.
    void giveUpAfter(const QString& hub, int answers);
    /// Leaves the dialog of this hub open until it is in front and `ready` is true; then looks
    /// around with `look` before it answers. A test that waits for something waits inside the
    /// dialog that has come up meanwhile, so that what is true while it is open is seen here only.
    void hold(const QString& hub, std::function<bool()> ready, std::function<void()> look);

    /// The hubs that a password has been asked for, in the order of the prompts.
    QStringList prompts() const { return m_prompts; }

private:
    bool isHeld(const QString& hub);
    void answer(QWidget* dialog);

    DialogAnswerer m_answerer;
    QString m_password;
    QHash<QString, QStringList> m_passwords;
    QStringList m_cancelled;
    QHash<QString, int> m_maxAnswers;
    QString m_heldHub;
    QDeadlineTimer m_patience; ///< a condition that never comes true must not hang the test
    std::function<bool()> m_ready;
    std::function<void()> m_look;
    QStringList m_prompts;
};
