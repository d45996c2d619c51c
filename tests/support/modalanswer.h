#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/// Answers the next modal dialog that comes up, once, while the code under test waits in its
/// exec(). Create it before the action that opens the dialog.
class ModalAnswer : public QObject
{
    Q_OBJECT

public:
    /// Calls `act` with the dialog; `act` must end in the dialog being closed.
    explicit ModalAnswer(std::function<void(QWidget*)> act);

    /// Clicks the button with this text (without mnemonic), as a mouse would.
    explicit ModalAnswer(const QString& buttonText);

    /// Whether a dialog came up and was answered.
    bool wasShown() const { return m_shown; }
    /// Title and text of the dialog, when it was a message box.
    QString title() const { return m_title; }
    QString text() const { return m_text; }
    /// Texts of a message box's buttons in alphabetical order: where each stands is up to the
    /// platform.
    QStringList buttons() const { return m_buttons; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    std::function<void(QWidget*)> m_act;
    bool m_shown = false;
    QString m_title;
    QString m_text;
    QStringList m_buttons;
};

/// Clicks the push button of `dialog` whose text, without mnemonic, is `text`; fails the test when
/// there is none.
void clickButton(QWidget* dialog, const QString& text);
