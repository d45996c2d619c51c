#pragma once

#include <QObject>

#include <functional>

class HubDialog;

/// The person at the desk: calls `answer` each time a password dialog has come up, from within its
/// exec(). An answer may leave the dialog open.
class PromptWatcher : public QObject
{
    Q_OBJECT

public:
    /// `count` says which prompt it is, from 1.
    using Answer = std::function<void(HubDialog* dialog, int count)>;

    explicit PromptWatcher(Answer answer);

    int count() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Answer m_answer;
    int m_count = 0;
};

/// Types into the password field, and into the confirmation field where there is one, and clicks
/// "Login" or "Submit". What stood in the fields is replaced.
void submitPassword(HubDialog* dialog, const QString& password);

/// Clicks "Cancel".
void cancelPrompt(HubDialog* dialog);
